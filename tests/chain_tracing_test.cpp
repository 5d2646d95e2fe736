// Which boxes fall after a line.
#include "ai/chain_tracing.h"

#include "core/state/work_lists.h"
#include "support/game_test.h"

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
        {"round to a joint", 2, 2, {1, 2, 6, 7, 11, 12}, 3, {{1, 2, 4}, {9, 4, 10}, {}}},
        {"one box", 1, 1, {1, 2}, 3, {{1}, {}, {4}}},
    };
    for (const auto& c : cases) {
        SetUpGame(c.Columns, c.Rows, Humanoid, Humanoid);
        DrawForNobody(c.Drawn);
        const GameState before = Game;
        EXPECT_EQ(Traced(c.Line), c.Expected) << c.Story;
        EXPECT_TRUE(Game == before) << c.Story;
    }
}

} // namespace
