// The settings between two runs of the program.
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string Samples = QUIBLINK_TESTS "/samples/";
const std::string File = "QUIBLNK.CFG";

class Configuration : public GameTest {};

TEST_F(Configuration, IsTakenWholeOrNotAtAllAndWrittenByExitAloneAfterAChange) {
    EXPECT_TRUE(StateOf(Command::Sound).Checked && Game.CurrentPlayer == 1);
    EXPECT_EQ(Game.PointSpacingX, 375);
    const GameState builtIn = Game;
    PutBytes(File, "1,2,3,4,5,6,7,a,1,8,b,2,"); // all but the last value
    StartFresh();
    EXPECT_TRUE(Game == builtIn);
    for (const std::string name : {"built_in.cfg", "changed.cfg"}) {
        PutBytes(File, BytesOf(Samples + name));
        StartFresh();
        std::filesystem::remove(File);
        RunCommand(Command::Exit);
        EXPECT_TRUE(Game.ProgramEnding && !std::filesystem::exists(File)) << "nothing changed";
        Game.ProgramEnding = false;
        Game.SettingsChanged = true;
        Form_Unload();
        EXPECT_FALSE(std::filesystem::exists(File)) << "the close box";
        Game.ProgramEnding = false;
        RunCommand(Command::Exit);
        EXPECT_EQ(BytesOf(File), BytesOf(Samples + name));
    }
    EXPECT_EQ(Game.PlayerName, (PerPlayer<std::string>{{"Mar\u00eda", "\u03a9mega"}}));
    EXPECT_EQ(Game.PlayerKind, (PerPlayer<Integer>{{Humanoid, ComputerCheat}}));
    EXPECT_EQ(frmQuibsMain.picPlayingField.BackColor, 8388608);
    EXPECT_FALSE(Game.SoundOn || StateOf(Command::Sound).Checked);
}

} // namespace
