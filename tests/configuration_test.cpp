// The settings between two runs of the program.
#include "storage/configuration.h"

#include "support/files.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string Samples = QUIBLINK_TESTS "/samples/";
const std::string File = "QUIBLNK.CFG";

class Configuration : public GameTest {
    TestDirectory Directory;
};

TEST_F(Configuration, IsWrittenByExitAloneAndOnlyAfterAChange) {
    RunCommand(Command::Exit);
    EXPECT_TRUE(Game.ProgramEnding && !std::filesystem::exists(File));
    Game.ProgramEnding = false;
    RunCommand(Command::Sound);
    RunCommand(Command::Sound);
    Form_Unload();
    EXPECT_FALSE(std::filesystem::exists(File));
    Game.ProgramEnding = false;
    RunCommand(Command::Exit);
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "built_in.cfg"));
}

TEST_F(Configuration, LastsFromRunToRunByteForByte) {
    std::filesystem::copy(Samples + "changed.cfg", File);
    StartFresh();
    EXPECT_EQ(Game.PlayerName, (PerPlayer<std::string>{{"Mar\u00eda", "\u03a9mega"}}));
    EXPECT_EQ(Game.PlayerKind, (PerPlayer<Integer>{{Humanoid, ComputerCheat}}));
    EXPECT_EQ(Game.PlayerColor, (PerPlayer<Color>{{16711680, 33023}}));
    EXPECT_EQ(frmQuibsMain.picPlayingField.BackColor, 8388608);
    EXPECT_EQ(Game.ComputerGhostColor, -1);
    EXPECT_TRUE(Game.GridColumns == 3 && Game.GridRows == 2);
    EXPECT_FALSE(Game.SoundOn || StateOf(Command::Sound).Checked || Game.SettingsChanged);
    std::filesystem::remove(File);
    Game.SettingsChanged = true;
    RunCommand(Command::Exit);
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "changed.cfg"));
}

TEST_F(Configuration, ReadsAnyWordButTrueAsFalse) {
    for (const std::string word : {"True", "\"True", "true", "TRUE", "1", "True "}) {
        PutBytes(File, "1,2,3,4,5,6,7,a,1,8,b,2," + word);
        ReadConfiguration();
        EXPECT_EQ(Game.SoundOn, word == "True" || word == "\"True") << word;
    }
}

} // namespace
