// The settings between two runs of the program.
#include "storage/configuration.h"

#include "storage/value_file.h"
#include "support/brief_use.h"
#include "support/files.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string Samples = QUIBLINK_TESTS "/samples/";
const std::string File = "QUIBLNK.CFG";

class Configuration : public ::testing::Test {
protected:
    void SetUp() override {
        CloseChannel();
        StartFresh();
    }

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
    SetUp();
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

TEST_F(Configuration, ThatIsNotWholeChangesNothing) {
    const GameState builtIn = Game;
    const auto read = [](const std::string& bytes) {
        PutBytes(File, bytes);
        ReadConfiguration();
        return Game;
    };
    using Words = std::vector<std::string>;
    const std::string start = "1,2,3,4,5,6,7,a,1,8,b,";
    for (const char* const end : {"", "2", "32768,True", "x,True", ",True", "2.5,True"})
        EXPECT_TRUE(read(start + end) == builtIn) << end;
    for (const std::string& word : Words{"true", "TRUE", "1", "\"True", "True "})
        EXPECT_EQ(read(start + "2," + word).SoundOn, word == "\"True") << word;
    EXPECT_EQ(read("1,2,3,4,5,6,7,Ann, Lee,1,8,b,2,True").PlayerName.at(1), "a")
        << "a comma in a name moves all that follows";
}

TEST_F(Configuration, ThatCannotBeWrittenLetsTheProgramEnd) {
    std::filesystem::create_directory(File);
    RunCommand(Command::Sound);
    RunCommand(Command::Exit);
    EXPECT_TRUE(Game.ProgramEnding && TheNullDesktop.Boxes.empty());
}

TEST_F(Configuration, OfAnySizeAndKindCanBePlayed) {
    for (const int grid : {-32768, 0, 32767}) {
        for (const int kind : {-1, 4, 32767}) {
            BeginAnew();
            Game.GridColumns = Game.GridRows = ToInteger(grid);
            Game.PlayerKind.at(1) = ToInteger(kind);
            Game.SettingsChanged = true;
            WriteConfiguration();
            Form_Load();
            EXPECT_EQ(Game.GridRows, grid);
            EXPECT_TRUE(UseGameBriefly());
            EXPECT_TRUE(TheNullDesktop.Boxes.empty()) << TheNullDesktop.Boxes.back().Text;
        }
    }
}

TEST_F(Configuration, CutShortAnywhereOrChangedInAnyByteIsTakenWholeOrNotAtAll) {
    GameState before = Game;
    before.PlayerKind.at(2) = 12345; // of no damaged file
    const auto isHarmless = [&before](const std::string& bytes) {
        Game = before;
        PutBytes(File, bytes);
        ReadConfiguration();
        return Game == before || Game.PlayerKind.at(2) != before.PlayerKind.at(2);
    };
    EXPECT_EQ(FirstHarmfulDamage(BytesOf(Samples + "changed.cfg"), isHarmless), "");
}

} // namespace
