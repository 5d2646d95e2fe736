// The settings between two runs of the program.
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string Samples = QUIBLINK_TESTS "/samples/";
const std::string File = "QUIBLNK.CFG";

class Configuration : public GameTest {};

TEST_F(Configuration, IsWrittenByExitAloneAndOnlyAfterAChange) {
    RunCommand(Command::Exit);
    EXPECT_TRUE(Game.ProgramEnding && !std::filesystem::exists(File));
    Game.ProgramEnding = false;
    Game.SettingsChanged = true;
    Form_Unload();
    EXPECT_FALSE(std::filesystem::exists(File));
    Game.ProgramEnding = false;
    RunCommand(Command::Exit);
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "built_in.cfg"));
}

TEST_F(Configuration, IsTakenWholeOrNotAtAllAndLastsByteForByte) {
    EXPECT_TRUE(Game.SoundOn && StateOf(Command::Sound).Checked) << "without a file";
    const GameState builtIn = Game;
    PutBytes(File, "1,2,3,4,5,6,7,a,1,8,b,2,"); // all but the last value
    StartFresh();
    EXPECT_TRUE(Game == builtIn);

    PutBytes(File, BytesOf(Samples + "changed.cfg"));
    StartFresh();
    EXPECT_EQ(Game.PlayerName, (PerPlayer<std::string>{{"Mar\u00eda", "\u03a9mega"}}));
    EXPECT_EQ(Game.PlayerKind, (PerPlayer<Integer>{{Humanoid, ComputerCheat}}));
    EXPECT_EQ(frmQuibsMain.picPlayingField.BackColor, 8388608);
    EXPECT_EQ(Game.GridColumns, 3);
    EXPECT_FALSE(Game.SoundOn || StateOf(Command::Sound).Checked || Game.SettingsChanged);
    std::filesystem::remove(File);
    Game.SettingsChanged = true;
    RunCommand(Command::Exit);
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "changed.cfg"));
}

} // namespace
