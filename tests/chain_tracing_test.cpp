// Which boxes fall after a line, compared with cases worked out by hand and with a slow tracer that
// plays on a whole copy of the board.
#include "ai/chain_tracing.h"

#include "core/work_lists.h"
#include "support/game_test.h"
#include "support/person.h"

namespace {

struct Trace {
    std::vector<int> Boxes, Lines, TailLines;
    bool IsClosedLoop = false;

    bool operator==(const Trace&) const = default;
};

void PrintTo(const Trace& trace, std::ostream* out) {
    *out << ::testing::PrintToString(trace.Boxes) << ' ' << ::testing::PrintToString(trace.Lines)
         << ' ' << ::testing::PrintToString(trace.TailLines) << (trace.IsClosedLoop ? " loop" : "");
}

Trace Traced(int line) {
    TraceChain(line);
    return {{Work.ChainBoxes.begin(), Work.ChainBoxes.end()},
            {Work.ChainLines.begin(), Work.ChainLines.end()},
            {Work.ChainTailLines.begin(), Work.ChainTailLines.end()},
            Work.ChainTailLines.Count() == CountedList<Integer>::ClosedLoop};
}

class SlowTracer {
public:
    Trace Run(int line) {
        const Line& opened = Lines.at(line);
        Lines.at(line).Drawn = 1;
        if (Sides(opened.FirstBox) < 3 && Sides(opened.SecondBox) < 3) {
            ++Sides(opened.FirstBox);
            ++Sides(opened.SecondBox);
        }
        if (Sides(opened.FirstBox) == 3)
            Follow(opened.FirstBox, line, Found.Lines);
        if (Sides(opened.SecondBox) == 3)
            Follow(opened.SecondBox, line, Found.TailLines);
        else if (Sides(opened.SecondBox) == 4)
            for (const int side : Boxes.at(opened.SecondBox).Sides)
                Found.IsClosedLoop |= !Found.Lines.empty() && side == Found.Lines.back();
        return Found;
    }

private:
    Integer& Sides(int box) { return Boxes.at(box).SidesDrawn; }

    void Follow(int box, int line, std::vector<int>& taken) {
        for (const int side : Boxes.at(box).Sides) {
            if (Lines.at(side).Drawn == 0) {
                line = side;
                taken.push_back(line);
                break;
            }
        }
        Lines.at(line).Drawn = 1;
        const int first = Lines.at(line).FirstBox;
        const int second = Lines.at(line).SecondBox;
        for (const int beside : {first, second})
            if (beside != 0 && ++Sides(beside) == 4)
                Found.Boxes.push_back(beside);
        const int next = first != box && first != 0 ? first : second != box ? second : 0;
        if (next != 0 && Sides(next) == 3)
            Follow(next, line, taken);
    }

    std::vector<Line> Lines = Game.Lines;
    std::vector<Box> Boxes = Game.Boxes;
    Trace Found;
};

class ChainTracing : public GameTest {};

TEST_F(ChainTracing, FindsTheChainsAndLoopsWorkedOutByHand) {
    const std::vector<int> corridor{1, 2, 3, 4, 5, 6};     // 3 by 1, open at both ends
    const std::vector<int> ring{1, 2, 5, 6, 7, 8, 11, 12}; // 2 by 2, nothing drawn inside
    const struct {
        const char* Story;
        int Columns, Rows;
        std::vector<int> Drawn;
        int Line;
        Trace Expected;
    } cases[] = {
        {"nothing falls", 3, 1, {1}, 8, {}},
        {"from the border inwards", 3, 1, corridor, 7, {{1, 2, 3}, {}, {8, 9, 10}}},
        {"from the right border", 3, 1, corridor, 10, {{3, 2, 1}, {9, 8, 7}, {}}},
        {"both ways from the middle", 3, 1, corridor, 8, {{1, 2, 3}, {7}, {9, 10}}},
        {"the missing side", 3, 1, {1, 2, 3, 4, 5, 6, 7}, 8, {{1, 2, 3}, {9, 10}, {}}},
        {"the missing side from beyond", 3, 1, {1, 2, 3, 4, 5, 6, 10}, 9, {{3, 2, 1}, {}, {8, 7}}},
        {"the last side of two boxes", 3, 1, {1, 2, 4, 5, 7, 9}, 8, {{1, 2}, {}, {}}},
        {"round a ring", 2, 2, ring, 3, {{1, 2, 3, 4}, {9, 4, 10}, {}, true}},
        {"one box", 1, 1, {1, 2}, 3, {{1}, {}, {4}}},
    };
    for (const auto& c : cases) {
        SetUpGame(c.Columns, c.Rows, Humanoid, Humanoid);
        DrawForNobody(c.Drawn);
        EXPECT_EQ(Traced(c.Line), c.Expected) << c.Story;
    }
}

TEST_F(ChainTracing, AgreesWithATracerThatCopiesTheBoard) {
    int loops = 0;
    int bothWays = 0;
    for (const auto& [columns, rows] :
         {std::pair{3, 2}, {2, 5}, {7, 4}, {1, 6}, {5, 1}, {2, 2}, {4, 3}, {9, 13}}) {
        for (std::uint32_t seed = 1; seed <= 150; ++seed) {
            SetUpGame(columns, rows, Humanoid, Humanoid);
            DrawRandomPosition(seed);
            const GameState before = Game;
            for (int line = 1; line <= Game.LineCount; ++line) {
                const Trace trace = Traced(line);
                ASSERT_EQ(trace, SlowTracer().Run(line))
                    << "line " << line << " of " << columns << " by " << rows << ", seed " << seed;
                loops += trace.IsClosedLoop && trace.Lines.size() > 2 ? 1 : 0;
                bothWays += !trace.Lines.empty() && !trace.TailLines.empty() ? 1 : 0;
            }
            ASSERT_TRUE(Game == before);
        }
    }
    EXPECT_GT(loops, 100) << "the positions must be worth tracing";
    EXPECT_GT(bothWays, 1000);
}

} // namespace
