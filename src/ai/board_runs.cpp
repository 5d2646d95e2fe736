#include "ai/board_runs.h"

#include "core/state/grid.h"

namespace {

class Reader {
public:
    Reader() : JointNumbers(Game.Boxes.size(), 0), IsRead(Game.Boxes.size(), false) {
        Found.RunOfLine.resize(Game.Lines.size());
        int joints = 0;
        for (int box = 1; box <= Game.BoxCount; ++box)
            if (Game.Boxes.at(box).SidesDrawn < 2)
                JointNumbers.at(box) = ++joints;
        for (int box = 1; box <= Game.BoxCount; ++box)
            if (Game.Boxes.at(box).SidesDrawn == 2 && !IsRead.at(box))
                ReadRunThrough(box);
    }

    BoardRuns Found;

private:
    void ReadRunThrough(int box) {
        Run run{.Boxes = 1};
        const int firstLine = FirstUndrawnSide(box);
        run.Ends[0] = Follow(box, firstLine, run.Boxes);
        run.Ends[1] =
            run.IsRing() ? Run::Closed : Follow(box, FirstUndrawnSide(box, firstLine), run.Boxes);
        Found.Runs.push_back(run);
    }

    // Goes from `box` over `line` to the end of the run; returns what lies there.
    int Follow(int box, int line, int& boxes) {
        const int start = box;
        for (;;) {
            Found.RunOfLine.at(line) = static_cast<int>(Found.Runs.size());
            box = BoxAcross(line, box);
            if (box == start)
                return Run::Closed;
            if (Game.Boxes.at(box).SidesDrawn != 2)
                return JointNumbers.at(box); // 0 beyond the border
            ++boxes;
            IsRead.at(box) = true;
            line = FirstUndrawnSide(box, line);
        }
    }

    std::vector<int> JointNumbers; // by box, 0 = none
    std::vector<bool> IsRead;
};

} // namespace

BoardRuns FindBoardRuns() {
    return Reader().Found;
}
