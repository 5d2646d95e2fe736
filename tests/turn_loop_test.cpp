// Whole games from set-up to their end.
#include "core/turn_loop.h"

#include <tuple>

#include "core/random.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

using Field = std::tuple<int, int>;
using Kinds = std::tuple<Integer, Integer>;

class ComputerGame : public ::testing::TestWithParam<std::tuple<Field, Integer, Integer>> {
protected:
    void SetUp() override { StartFresh(); }
};

TEST_P(ComputerGame, IsPlayedToItsEndWithASoundBoardAfterEveryLine) {
    const auto [field, firstKind, secondKind] = GetParam();
    std::tie(Game.GridColumns, Game.GridRows) = field;
    Game.PlayerKind.at(1) = firstKind;
    Game.PlayerKind.at(2) = secondKind;
    for (const int seed : {1, 2, 3}) {
        SeedRandom(seed);
        TheNullDesktop.WhenYielding = [] { ASSERT_TRUE(BoardIsSound()); };
        RunCommand(Command::Start);
        EXPECT_EQ(Game.BoxesClaimed, Game.BoxCount);
        EXPECT_EQ(Game.LinesDrawn, Game.LineCount);
        EXPECT_TRUE(BoardIsSound());
        EXPECT_FALSE(Game.GameInPlay);
    }
}

INSTANTIATE_TEST_SUITE_P(AllPairsOfKinds, ComputerGame,
                         ::testing::Combine(::testing::Values(Field{10, 10}, Field{7, 4},
                                                              Field{1, 1}, Field{1, 6}, Field{5, 1},
                                                              Field{2, 2}),
                                            ::testing::Values(1, 2, 3),
                                            ::testing::Values(1, 2, 3)));

} // namespace
