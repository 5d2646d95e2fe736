#include "ai/chain_tracing.h"

#include <vector>

#include "core/state/grid.h"
#include "core/state/work_lists.h"

namespace {

// A copy of the board that is made by remembering what differs from it.
class PlayOut {
public:
    // Starts from the board as it stands.
    void Restart() {
        for (const int box : TouchedBoxes)
            AddedSides.at(box) = 0;
        for (const int line : TouchedLines)
            IsMarked.at(line) = false;
        TouchedBoxes.clear();
        TouchedLines.clear();
        if (AddedSides.size() != Game.Boxes.size())
            AddedSides.assign(Game.Boxes.size(), 0);
        if (IsMarked.size() != Game.Lines.size())
            IsMarked.assign(Game.Lines.size(), false);
    }

    int SidesDrawn(int box) const { return Game.Boxes.at(box).SidesDrawn + AddedSides.at(box); }

    bool IsDrawn(int line) const { return Game.Lines.at(line).Drawn != 0 || IsMarked.at(line); }

    void AddSide(int box) {
        ++AddedSides.at(box);
        TouchedBoxes.push_back(box);
    }

    void Mark(int line) {
        IsMarked.at(line) = true;
        TouchedLines.push_back(line);
    }

private:
    std::vector<int> AddedSides;
    std::vector<bool> IsMarked;
    std::vector<int> TouchedBoxes, TouchedLines;
};

PlayOut playOut;

int FirstSideLeft(int box) {
    return FirstSide(box, [](int side) { return !playOut.IsDrawn(side); });
}

void CompleteBoxesBeside(int line) {
    for (const Integer box : BoxesBeside(line)) {
        if (box == 0)
            continue;
        playOut.AddSide(box);
        if (playOut.SidesDrawn(box) == 4)
            Work.ChainBoxes.Append(box);
    }
}

// Takes box after box, each of which has three sides when it is reached. A first box that `line`
// itself completes has no side left to draw, and is taken by counting `line`.
void Walk(int box, int line, CountedList<Integer>& lines) {
    do {
        if (const int side = FirstSideLeft(box); side != 0) {
            line = side;
            lines.Append(ToInteger(line));
        }
        playOut.Mark(line);
        CompleteBoxesBeside(line);
        box = BoxAcross(line, box);
    } while (box != 0 && playOut.SidesDrawn(box) == 3);
}

} // namespace

void TraceChain(int line) {
    Work.ChainBoxes.Clear();
    Work.ChainLines.Clear();
    Work.ChainTailLines.Clear();
    playOut.Restart();
    playOut.Mark(line);

    const auto [first, second] = BoxesBeside(line);
    if (playOut.SidesDrawn(first) < 3 && playOut.SidesDrawn(second) < 3) {
        playOut.AddSide(first);
        playOut.AddSide(second);
    }
    if (playOut.SidesDrawn(first) == 3)
        Walk(first, line, Work.ChainLines);
    const int secondSides = playOut.SidesDrawn(second);
    if (secondSides == 3)
        Walk(second, line, Work.ChainTailLines);
    else if (secondSides == 4 && Work.ChainLines.Count() > 0 &&
             HasSide(second, Work.ChainLines.Last()))
        Work.ChainTailLines.MarkClosedLoop();
}

bool EveryLineTakesABox(const CountedList<Integer>& lines) {
    playOut.Restart();
    for (const Integer line : lines) {
        bool takes = false;
        for (const Integer box : BoxesBeside(line)) {
            playOut.AddSide(box);
            takes = takes || (box != 0 && playOut.SidesDrawn(box) == 4);
        }
        if (!takes)
            return false;
    }
    return true;
}
