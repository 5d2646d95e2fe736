// A game as it is told to somebody who listens instead of looking.
#include "display/news.h"

#include "core/state/work_lists.h"
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
              (Sayings{"Colossus's Turn. 2 by 1 boxes, 3 of 7 lines drawn. The arrow keys move "
                       "the ghost line, Space turns it, Return draws it. Home tells its place, End "
                       "how the game stands, Shift with an arrow the next box.",
                       "down, row 1, column 1, gives a box away",
                       "Colossus's Turn. Guardian drew across, row 2, column 2, and took a box. "
                       "Colossus 0, Guardian 1.",
                       "Colossus's Turn. GAME PAUSED.", "Colossus's Turn.",
                       "down, row 1, column 3, closes a box",
                       "Colossus took a box. Colossus 1, Guardian 1. It's A Draw."}));
}

TEST_F(News, TellWhatEachLineDoesAndWhatIsAskedFor) {
    SetUpGame(4, 2, Humanoid, ComputerAverage);
    Game.MouseDownSeen = false;
    Work.ChainBoxes.Append(7); // of a computer that is choosing
    DrawForNobody({1, 2, 3, 4, 5, 6, 7, 8});
    PointAt(17);
    DrawForNobody({9, 13, 15});
    for (const int line : {10, 17, 14})
        PointAt(line);
    for (const FieldKey key : {FieldKey::TellPlace, FieldKey::TellStanding, FieldKey::TellBoxRight,
                               FieldKey::TellBoxLeft, FieldKey::TellBoxAbove, FieldKey::Left})
        picPlayingField_KeyDown(key);
    const std::string last = "down, row 2, column 1, gives a box away, and 3 more lie open";
    EXPECT_EQ(TheNullDesktop.Sayings,
              (Sayings{"down, row 1, column 3, gives 4 boxes away",
                       "across, row 3, column 2, free, but 3 boxes lie open",
                       "down, row 1, column 3, closes a box, and 2 more lie open", last,
                       last + ". Right: 2 sides: top, bottom.",
                       "Colossus's Turn. Colossus 1, Guardian 0. 3 boxes lie open, the first at "
                       "row 1, column 2.",
                       "row 2, column 1, 2 sides: top, bottom", "No box that way",
                       "row 1, column 1, Colossus's", "No line that way"}));
    EXPECT_EQ(Work.ChainBoxes.Count(), 1);
}

TEST_F(News, OfAGameBetweenComputersAreTheScoreNowAndThen) {
    RunCommand(Command::Start);
    EXPECT_GT(TheNullDesktop.Sayings.size(), 3U);
    EXPECT_LT(TheNullDesktop.Sayings.size(), 3 + TheNullDesktop.SecondsWaited / 15);
    EXPECT_EQ(TheNullDesktop.Sayings.at(1).find("drew"), std::string::npos);
}

} // namespace
