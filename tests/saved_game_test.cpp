// Games in files: what is written, what is read, and what a damaged file does.
#include "storage/saved_game.h"

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <locale>
#include <sstream>

#include "core/text_encoding.h"
#include "display/command_states.h"
#include "display/field.h"
#include "storage/value_file.h"
#include "support/brief_use.h"
#include "support/files.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string Samples = QUIBLINK_TESTS "/samples/";
const std::string Corpus = QUIBLINK_TESTS "/fuzz/corpus/saved_game/";

class SavedGame : public ::testing::Test {
protected:
    void SetUp() override {
        StartFresh();
        CloseChannel();
    }

    // The sample of one box with one of its lines, counted from 1, put in another way.
    static std::string OneBoxWith(int number, const std::string& replacement) {
        std::istringstream sample(BytesOf(Samples + "one_box.qbs"));
        std::string text, line;
        for (int i = 1; std::getline(sample, line); ++i)
            text += i == number ? replacement + "\r\n" : line + "\n";
        return text;
    }

    void OpenBytes(const std::string& bytes) {
        PutBytes(File, bytes);
        OpenGame(File);
    }

    bool ChannelIsTaken() {
        try {
            OpenForInput(Samples + "one_box.qbs");
        } catch (const std::runtime_error&) {
            return true;
        }
        CloseChannel();
        return false;
    }

    TestDirectory Directory;
    std::string File = Directory.Path + "/game.qbs";
};

TEST_F(SavedGame, OfASampleIsShownPausedAndSavedByteForByte) {
    OpenGame(Samples + "two_boxes.qbs");
    EXPECT_TRUE(BoardIsSound());
    EXPECT_EQ(Game.PlayerName.at(1), "Jos\u00e9 \"Pepe\"");
    EXPECT_EQ(Game.PlayerColor.at(2), 0x1FFFFFF);
    EXPECT_EQ(Game.PlayerKind.at(2), ComputerAverage);
    EXPECT_EQ(Game.Boxes.at(2).Sides, (std::array<Integer, 4>{2, 4, 6, 7}));
    EXPECT_EQ(Game.Lines.at(6), (Line{6, 4200, 2962, 1, 2}));
    EXPECT_EQ(frmQuibsMain.lblPlayer1Active.Caption, "Jos\u00e9 \"Pepe\"'s Turn");
    EXPECT_EQ(frmQuibsMain.lblPlayer2Active.Caption, "GAME PAUSED");
    EXPECT_EQ(frmQuibsMain.txtLinesStatus.Text, "Lines:     4 of     7");
    EXPECT_TRUE(Game.GamePaused && IsEnabled(Command::Exchange) && !IsEnabled(Command::Open));
    SaveGame(File);
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "two_boxes.qbs"));

    OpenGame(Samples + "one_box.qbs");
    EXPECT_EQ(Game.BoxCount, 2) << "a game was opened over one that waits to be started";
    TheNullDesktop.PictureWidth += 1001;
    LoadGame(File);
    EXPECT_EQ(Game.FieldLeft, 4326) << "a loaded field is centred afresh";
    EXPECT_TRUE(SaveGameAs(Directory.Path, "moved.txt"));
    LoadGame("moved.qbs");
    SaveGame("again.qbs");
    EXPECT_EQ(BytesOf("again.qbs"), BytesOf("moved.qbs"));
}

TEST_F(SavedGame, OfADefaultFieldTakes1734LinesInAnyLocale) {
    struct Grouping : std::numpunct<char> {
        std::string do_grouping() const override { return "\1"; }
    };
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new Grouping));
    RunCommand(Command::Draw);
    Game.GridColumns = 5; // of the next game
    const GameState drawn = Game;
    SaveGame(File);
    const std::string bytes = BytesOf(File);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 1734);
    EXPECT_EQ(bytes.substr(0, 31), " 375 \r\n 375 \r\n 10 \r\n 10 \r\n " +
                                       std::to_string(drawn.CurrentPlayer) + " \r\n");
    EnterPhase(Phase::Idle);
    OpenGame(File);
    std::locale::global(before);
    EXPECT_TRUE(Game.Lines == drawn.Lines && Game.Boxes == drawn.Boxes);
    EXPECT_EQ(Game.GridColumns, 10);
    SaveGame("again.qbs");
    EXPECT_EQ(BytesOf("again.qbs"), bytes);
}

TEST_F(SavedGame, IsResumedByTheRightPlayerAndFinished) {
    Game.GridColumns = 3;
    Game.GridRows = 2;
    Game.PlayerKind = {{Humanoid, Humanoid}};
    int presses = 0;
    TheNullDesktop.WhenIdle = [&presses] {
        ++presses < 8 ? PressOpenLine() : RunCommand(Command::Pause);
    };
    RunCommand(Command::Start);
    TheNullDesktop.Answers = {MessageAnswer::Ok, MessageAnswer::Yes};
    EXPECT_FALSE(SaveGameAs(Directory.Path, ""));
    EXPECT_EQ(TheNullDesktop.Boxes.back().Text, "File name must be specified.");
    EXPECT_TRUE(SaveGameAs(Directory.Path, "game"));
    const GameState saved = Game;
    RunCommand(Command::Quit);
    EXPECT_EQ(Game.BoxCount, 0);

    OpenGame(File);
    EXPECT_TRUE(Game.Lines == saved.Lines && Game.Boxes == saved.Boxes);
    EXPECT_EQ(Game.CurrentPlayer, saved.CurrentPlayer);
    TheNullDesktop.WhenIdle = PressOpenLine;
    RunCommand(Command::Start);
    EXPECT_TRUE(BoardIsSound());
    EXPECT_EQ(Game.BoxesClaimed, 6);
    SaveGame("full.qbs");
    LoadGame("full.qbs");
    RunCommand(Command::Start);
    EXPECT_FALSE(Game.GameInPlay || Game.GamePaused) << "a full board goes straight to its end";
}

TEST_F(SavedGame, OpenedWhileTheEndOfAGameBlinksWaitsForItToStop) {
    Game.GridColumns = 1;
    Game.GridRows = 1;
    SaveGameAs(Directory.Path, "ignored"); // Save is off
    TheNullDesktop.WhenYielding = [opened = false]() mutable {
        if (!Game.GameOverShown || opened)
            return;
        opened = true;
        OpenGame(Samples + "two_boxes.qbs");
        EXPECT_EQ(Game.BoxCount, 1) << "the board was replaced below a running loop";
    };
    RunCommand(Command::Start);
    EXPECT_EQ(Game.BoxCount, 2);
    EXPECT_TRUE(Game.GamePaused && IsEnabled(Command::Save));
    EXPECT_FALSE(Game.GameOverShown || frmQuibsMain.shpPlayer3Active.Visible);
    EXPECT_FALSE(std::filesystem::exists("ignored.qbs"));
}

TEST_F(SavedGame, IsReplacedOnlyAfterAYesAndNeverPutWhereItDoesNotFit) {
    OpenGame(Samples + "one_box.qbs");
    PutBytes(File, "mine");
    TheNullDesktop.Answers = {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::Ok};
    EXPECT_TRUE(SaveGameAs(Directory.Path, "game"));
    EXPECT_EQ(BytesOf(File), "mine");
    EXPECT_EQ(TheNullDesktop.Boxes.back().Text,
              File + " already exists.\r\n\nDo you want to replace it?");
    EXPECT_TRUE(SaveGameAs(Directory.Path, "game"));
    EXPECT_EQ(BytesOf(File), BytesOf(Samples + "one_box.qbs"));

    const GameState before = Game;
    TheNullDesktop.PictureWidth = 3 * 375 - 1;
    LoadGame(Samples + "two_boxes.qbs");
    EXPECT_TRUE(Game == before);
    EXPECT_EQ(TheNullDesktop.Boxes.back().Text,
              "Window size is not large enough for:\r\n\n" + Samples + "two_boxes.qbs");
    EXPECT_FALSE(ChannelIsTaken());
    TheNullDesktop.PictureWidth = 3 * 375;
    LoadGame(Samples + "two_boxes.qbs");
    EXPECT_EQ(Game.BoxCount, 2);
}

TEST_F(SavedGame, CarriesItsSpacingUntilTheNextNewGame) {
    Game.TwipsPerPixelX = 10; // another screen
    RunCommand(Command::Draw);
    SaveGame(File);
    StartFresh();
    Game.GridColumns = Game.GridRows = 1;
    RunCommand(Command::Start);
    OpenGame(File);
    EXPECT_EQ(Game.PointSpacingX, 250);
    RunCommand(Command::Start);
    EXPECT_TRUE(BoardIsSound());
    RunCommand(Command::Start);
    EXPECT_EQ(Game.PointSpacingX, 375);
}

TEST_F(SavedGame, HasItsExtensionInPlaceOfAnotherOfThreeCharacters) {
    const std::vector<std::array<std::string, 3>> cases{{"/d", "game", "/d/game.qbs"},
                                                        {"/d", "game.QbS", "/d/game.QbS"},
                                                        {"/d", "game.txt", "/d/game.qbs"},
                                                        {"/d", "game.text", "/d/game.text.qbs"},
                                                        {"/d", "a.b.c", "/d/a.qbs"},
                                                        {"/", "game", "//game.qbs"},
                                                        {"/d.", "ab", "/d./ab.qbs"},
                                                        {"/d", "b./cd", "/d/b./cd.qbs"},
                                                        {"", "a", "/a.qbs"},
                                                        {"/d", "x.\u00e9ab", "/d/x.qbs"},
                                                        {"/d", "x.\u00e9a", "/d/x.\u00e9a.qbs"},
                                                        {"/d", ".qbs", "/d/.qbs"}};
    for (const auto& [directory, name, path] : cases)
        EXPECT_EQ(SavePath(directory, name), path);
}

TEST_F(SavedGame, ThatFailsAfterOpeningLeavesTheChannelTakenAndOtherFilesWhole) {
    mkfifo("pipe.qbs", 0600);
    std::filesystem::create_directory("directory.qbs");
    OpenGame(Samples + "one_box.qbs");
    for (const char* const unopenable : {"", "missing.qbs", "directory.qbs", "pipe.qbs"}) {
        LoadGame(unopenable);
        if (*unopenable != 'm')
            SaveGame(unopenable);
    }
    EXPECT_FALSE(ChannelIsTaken());

    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit fullDisk{100, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &fullDisk);
    SaveGame(File);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(ChannelIsTaken());

    TheNullDesktop.Answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    PutBytes(File, "mine");
    SaveGame(File);
    EXPECT_EQ(BytesOf(File), "mine") << "a file was cut that could not be written";
    PutBytes("QUIBLNK.CFG", "mine");
    Game.SettingsChanged = true;
    RunCommand(Command::Exit);
    EXPECT_TRUE(Game.ProgramEnding);
    EXPECT_EQ(BytesOf("QUIBLNK.CFG"), "mine");
}

TEST_F(SavedGame, WithAValueThatCannotBeEndsSilentlyAndTheNextGameIsWhole) {
    const std::vector<std::pair<int, std::string>> faults{
        {1, " 0 "},        {2, "-375 "}, {3, " 1.5 "},    {5, ""},     {8, " 32768 "}, {9, "one"},
        {6, "9999999999"}, {20, "-1 "},  {20, " 32767 "}, {35, "-1 "}, {35, " 32767 "}};
    for (const auto& [line, value] : faults) {
        SetUp();
        OpenBytes(OneBoxWith(line, value));
        EXPECT_TRUE(ChannelIsTaken() && !Game.GamePaused) << line << value;
        EXPECT_TRUE(IsEnabled(Command::Open) && TheNullDesktop.Boxes.empty());
        EXPECT_LT(Game.Boxes.capacity() + Game.Lines.capacity(), 100U) << "claimed, not read";
        TheNullDesktop.WhenIdle = PressOpenLine;
        RunCommand(Command::Start);
        EXPECT_TRUE(BoardIsSound());
        EXPECT_EQ(Game.BoxesClaimed, Game.BoxCount);
    }
    SetUp();
    SetUpGame(5, 5, Humanoid, Humanoid);
    Game.GameInPlay = false;
    Game.ComputerGhostLine = 50;
    OpenBytes(OneBoxWith(35, " 32767 "));
    picPlayingField_MouseMove(1, 1); // the highlighted line is no more

    SetUp();
    TheNullDesktop.WhenIdle = PressOpenLine;
    OpenBytes(OneBoxWith(5, " 3 "));
    EXPECT_TRUE(Game.GamePaused && IsEnabled(Command::Open) && !ChannelIsTaken());
    RunCommand(Command::Start);
    EXPECT_EQ(Game.BoxesClaimed, 1) << "the board is played on, whoever it was";
}

TEST_F(SavedGame, IsReadFromAnyLineEndsCommasAndQuotes) {
    const auto opened = [this](const std::string& file) {
        SetUp();
        OpenGame(file);
        EXPECT_TRUE(Game.GamePaused) << file;
        Game.GameToOpen.clear();
        return Game;
    };
    const GameState oneBox = opened(Corpus + "one_box.qbs");
    EXPECT_TRUE(opened(Corpus + "line_feeds.qbs") == oneBox);
    EXPECT_TRUE(opened(Corpus + "carriage_returns.qbs") == oneBox);
    EXPECT_EQ(opened(Corpus + "commas.qbs").PlayerName.at(1), "a,b");
    const GameState quoted = opened(Corpus + "quotes.qbs");
    EXPECT_EQ(quoted.PlayerName, (PerPlayer<std::string>{{"Ann", "B,o"}}));
    EXPECT_TRUE(quoted.Lines == oneBox.Lines);
    for (const int lineOfRow0 : {21, 40}) {
        PutBytes(File, OneBoxWith(lineOfRow0, " 9 "));
        opened(File);
        EXPECT_TRUE(BoardIsSound());
    }
    for (const std::string& name : std::vector<std::string>{"", "Ann Lee "}) {
        PutBytes(File, OneBoxWith(7, "  " + name));
        EXPECT_EQ(opened(File).PlayerName.at(1), name);
    }
}

TEST_F(SavedGame, KeepsEveryName) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"Ann", "Ann"},
        {"Zo\u00eb \u20ac\u0178", "Zo\xeb \x80\x9f"},
        {"\u03a9 \u4e2d \U0001F600", "\u03a9 \u4e2d \U0001F600"},
        {"\u00c3\u00a9", "\u00c3\u00a9"}, // its Windows-1252 would read as another name
        {"\u0081\u0085", "\u0081\u0085"}};
    for (const auto& [name, bytes] : cases) {
        EXPECT_EQ(EncodeForFile(name), bytes);
        EXPECT_EQ(DecodeFromFile(bytes), name);
    }
    for (const char* const noUtf8 : {"\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xe2\x82",
                                     "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf", "a\xff", "\xc3"})
        EXPECT_EQ(EncodeForFile(DecodeFromFile(noUtf8)), noUtf8);
}

TEST_F(SavedGame, CutShortAnywhereOrChangedInAnyByteDoesNoHarm) {
    const auto isHarmless = [this](const std::string& bytes) {
        BeginAnew();
        OpenBytes(bytes);
        CloseChannel();
        return UseGameBriefly();
    };
    EXPECT_EQ(FirstHarmfulDamage(BytesOf(Samples + "one_box.qbs"), isHarmless), "");
}

} // namespace
