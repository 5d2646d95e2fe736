// A game as it is told to somebody who listens instead of looking.
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

using Sayings = std::vector<std::string>;

class News : public GameTest {};

TEST_F(News, SayWhereALineLiesAndWhatItWouldDo) {
    const struct {
        std::vector<int> Drawn; // on 3 by 2 boxes
        int Line;
        const char* Words;
    } cases[] = {{{}, 8, "across, row 3, column 2, free"},
                 {{1, 4, 10, 2, 5, 14}, 12, "down, row 1, column 2, closes two boxes"},
                 {{4, 7, 5, 8}, 13, "down, row 2, column 2, gives two boxes away"}};
    for (const auto& c : cases) {
        StartFresh();
        SetUpGame(3, 2, Humanoid, Humanoid);
        Game.MouseDownSeen = false;
        DrawForNobody(c.Drawn);
        PointAt(c.Line);
        picPlayingField_MouseMove(Game.PointerX + 1, Game.PointerY); // says nothing new
        EXPECT_EQ(TheNullDesktop.Sayings, Sayings{c.Words});
    }
}

TEST_F(News, TellATurnInOneText) {
    SetUpGame(2, 1, Humanoid, ComputerAverage);
    DrawForNobody({1, 2, 3});
    Game.GameInPlay = false;
    Game.GamePaused = true;
    TheNullDesktop.WhenIdle = [turn = 0]() mutable {
        if (++turn == 2)
            return mnuPause_Click();
        PressLine(turn == 1 ? 5 : UndrawnLines().front());
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

TEST_F(News, TellOfAGameBetweenComputersOnlyTheScoreNowAndThenAndNothingIfNobodyListens) {
    for (const bool isListenedTo : {false, true}) {
        TheNullDesktop.IsListenedTo = isListenedTo;
        TheNullDesktop.SecondsWaited = 0;
        RunCommand(Command::Start);
        EXPECT_EQ(TheNullDesktop.Sayings.size() > 3, isListenedTo);
        EXPECT_LT(TheNullDesktop.Sayings.size(), 3 + TheNullDesktop.SecondsWaited / 15);
    }
    EXPECT_EQ(TheNullDesktop.Sayings.at(1).find("drew"), std::string::npos);
    EXPECT_NE(TheNullDesktop.Sayings.back().find("The Winner Is: "), std::string::npos);
}

} // namespace
