#include "ai/chain_tracing.h"

#include <vector>

#include "core/state/grid.h"

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

void CompleteBoxesBeside(int line, CountedList<Integer>& boxes) {
    for (const Integer box : BoxesBeside(line)) {
        if (box == 0)
            continue;
        playOut.AddSide(box);
        if (playOut.SidesDrawn(box) == 4)
            boxes.Append(box);
    }
}

// Takes box after box, each of which has three sides when it is reached. A first box that `line`
// itself completes has no side left to draw, and is taken by counting `line`.
void Walk(int box, int line, CountedList<Integer>& lines, CountedList<Integer>& boxes) {
    do {
        if (const int side = FirstSideLeft(box); side != 0) {
            line = side;
            lines.Append(ToInteger(line));
        }
        playOut.Mark(line);
        CompleteBoxesBeside(line, boxes);
        box = BoxAcross(line, box);
    } while (box != 0 && playOut.SidesDrawn(box) == 3);
}

} // namespace

void TraceChain(int line, ChainLists& found) {
    found.ChainBoxes.Clear();
    found.ChainLines.Clear();
    found.ChainTailLines.Clear();
    playOut.Restart();
    playOut.Mark(line);

    const auto [first, second] = BoxesBeside(line);
    if (playOut.SidesDrawn(first) < 3 && playOut.SidesDrawn(second) < 3) {
        playOut.AddSide(first);
        playOut.AddSide(second);
    }
    if (playOut.SidesDrawn(first) == 3)
        Walk(first, line, found.ChainLines, found.ChainBoxes);
    const int secondSides = playOut.SidesDrawn(second);
    if (secondSides == 3)
        Walk(second, line, found.ChainTailLines, found.ChainBoxes);
    else if (secondSides == 4 && found.ChainLines.Count() != 0 &&
             HasSide(second, found.ChainLines.Last()))
        found.ChainTailLines.MarkClosedLoop();
}

Prospect ProspectOf(int line) {
    Prospect prospect;
    for (const Integer box : BoxesBeside(line))
        prospect.Closed += Game.Boxes.at(box).SidesDrawn == 3 ? 1 : 0;
    ChainLists found = Work; // for the lengths
    TraceChain(line, found);
    if (prospect.Closed == 0)
        prospect.Given = found.ChainBoxes.Count();
    for (int box = 1; box <= Game.BoxCount; ++box)
        if (playOut.SidesDrawn(box) == 3)
            Walk(box, line, found.ChainLines, found.ChainBoxes);
    prospect.Open = found.ChainBoxes.Count() - prospect.Closed - prospect.Given;
    return prospect;
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
