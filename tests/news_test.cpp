// A game as it is told to somebody who listens instead of looking.
#include "display/news.h"

#include "core/play/game_over.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

using Sayings = std::vector<std::string>;

class News : public GameTest {};

TEST_F(News, TellATurnInOneText) {
    SetUpGame(2, 1, Humanoid, ComputerAverage);
    DrawForNobody({1, 2, 3});
    Game.GameInPlay = false;
    Game.GamePaused = true;
    TheNullDesktop.WhenIdle = [turn = 0]() mutable {
        if (++turn == 2)
            return mnuPause_Click();
        PointAt(turn == 1 ? 5 : UndrawnLines().front());
        PointTo({Game.PointerX + 15, Game.PointerY}); // says nothing new
        PressHere();
    };
    RunCommand(Command::Start);
    RunCommand(Command::Start);
    EXPECT_EQ(TheNullDesktop.Sayings,
              (Sayings{"Colossus's Turn. 2 by 1 boxes, 3 of 7 lines drawn.",
                       "down, row 1, column 1, gives a box away",
                       "Colossus's Turn. Guardian drew across, row 2, column 2, and took a box. "
                       "Colossus 0, Guardian 1.",
                       "Colossus's Turn. GAME PAUSED.", "Colossus's Turn.",
                       "down, row 1, column 3, closes a box",
                       "Colossus took a box. Colossus 1, Guardian 1. It's A Draw."}));
}

TEST_F(News, EndWithTheScoreEvenIfItWasToldBefore) {
    SetUpGame(2, 1, ComputerAverage, ComputerAverage);
    DrawForNobody({1, 2, 3, 4, 5, 6, 7});
    TellNews();
    ShowGameOver();
    EXPECT_EQ(TheNullDesktop.Sayings.back(), "Colossus 2, Guardian 0. The Winner Is: Colossus.");
}

TEST_F(News, OfAGameBetweenComputersAreTheScoreNowAndThen) {
    RunCommand(Command::Start);
    EXPECT_GT(TheNullDesktop.Sayings.size(), 3U);
    EXPECT_LT(TheNullDesktop.Sayings.size(), 3 + TheNullDesktop.SecondsWaited / 15);
    EXPECT_EQ(TheNullDesktop.Sayings.at(1).find("drew"), std::string::npos);
}

} // namespace
