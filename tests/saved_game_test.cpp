// Games in files: what is written, what is read, and what a file that cannot be does.
#include "storage/saved_game.h"

#include <sys/stat.h>

#include "base/text_encoding.h"
#include "display/command_states.h"
#include "display/field.h"
#include "storage/value_file.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

const std::string OneBox = QUIBLINK_TESTS "/samples/one_box.qbs";
const std::string TwoBoxes = QUIBLINK_TESTS "/samples/two_boxes.qbs";
const std::string OtherScreen = QUIBLINK_TESTS "/samples/three_by_two.qbs";

class SavedGame : public GameTest {
protected:
    // Opens a sample with one of its lines put in another way, after a larger game.
    static void OpenWith(int number, const std::string& replacement,
                         const std::string& sample = OneBox) {
        StartFresh();
        SetUpGame(5, 5, Humanoid, Humanoid);
        Game.GameInPlay = false;
        Game.GamePaused = true;
        Game.ComputerGhostLine = 50;
        std::string bytes = BytesOf(sample);
        std::size_t begin = 0;
        for (int line = 1; line < number; ++line)
            begin = bytes.find('\n', begin) + 1;
        PutBytes("damaged.qbs", bytes.replace(begin, bytes.find('\r', begin) - begin, replacement));
        OpenGame("damaged.qbs");
    }
};

TEST_F(SavedGame, IsShownPausedAndCentredWhereItFits) {
    OpenGame(OneBox);
    const GameState before = Game;
    TheNullDesktop.Answers = {MessageAnswer::Ok, MessageAnswer::Ok};
    for (const auto& [width, height] : {std::pair{3 * 375 - 1, 6300}, {8400, 2 * 375 - 1}}) {
        TheNullDesktop.PictureWidth = width;
        TheNullDesktop.PictureHeight = height;
        LoadGame(TwoBoxes);
        EXPECT_TRUE(Game == before);
        EXPECT_EQ(TheNullDesktop.Boxes.back().Text,
                  "Window size is not large enough for:\r\n\n" + TwoBoxes);
    }
    TheNullDesktop.PictureWidth = 3 * 375;
    TheNullDesktop.PictureHeight = 2 * 375;
    LoadGame(TwoBoxes);
    EXPECT_TRUE(BoardIsSound());
    EXPECT_EQ(Game.Lines.at(6), (Line{6, 188 + 375, 188, 1, 2}));
    EXPECT_EQ(frmQuibsMain.lblPlayer1Active.Caption, "Jos\u00e9 \"Pepe\"'s Turn");
    RunCommand(Command::Exchange);
    EXPECT_EQ(frmQuibsMain.lblPlayer1Active.Caption, "Computer's Turn");
    EXPECT_EQ(frmQuibsMain.lblPlayer2Active.Caption, "GAME PAUSED");
    EXPECT_EQ(TextsOf(frmQuibsMain),
              "Jos\u00e9 \"Pepe\":     1     Humanoid|Computer:     0     Average|"
              "Boxes:     1 of     2|Lines:     4 of     7");
    EXPECT_TRUE(Game.GamePaused && IsEnabled(Command::Exchange) && Game.GridColumns == 2);
    OpenGame(OneBox);
    EXPECT_EQ(Game.BoxCount, 2) << "a game was opened over one that waits to be started";
}

TEST_F(SavedGame, IsSavedByteForByteAndOverAnotherOnlyAfterAYes) {
    OpenGame(TwoBoxes);
    TheNullDesktop.Answers = {MessageAnswer::Ok, MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_FALSE(SaveGameAs(Directory.Path, ""));
    EXPECT_EQ(TheNullDesktop.Boxes.back().Text, "File name must be specified.");
    PutBytes("game.qbs", "mine");
    EXPECT_TRUE(SaveGameAs(Directory.Path, "game"));
    EXPECT_EQ(BytesOf("game.qbs"), "mine");
    EXPECT_EQ(TheNullDesktop.Boxes.back().Text,
              Directory.Path + "/game.qbs already exists.\r\n\nDo you want to replace it?");
    EXPECT_TRUE(SaveGameAs(Directory.Path, "game"));
    EXPECT_EQ(BytesOf("game.qbs"), BytesOf(TwoBoxes));
    LoadGame(OtherScreen);
    EXPECT_EQ(ColumnsThatFit(), 21) << "of the next game, whatever spacing was opened";
    SaveGame("other.qbs");
    EXPECT_EQ(BytesOf("other.qbs"), BytesOf(OtherScreen));
}

TEST_F(SavedGame, HasItsExtensionInPlaceOfAnotherOfThreeCharacters) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"game.QbS", "game.QbS"}, {"a.b.c", "a.qbs"},      {"a", "a.qbs"},
        {"ab", "ab.qbs"},         {"x.\u00e9ab", "x.qbs"}, {"x.\u00e9a", "x.\u00e9a.qbs"}};
    for (const auto& [name, file] : cases)
        EXPECT_EQ(SavePath(".", name), "./" + file);
}

TEST_F(SavedGame, ThatFailsAfterOpeningLeavesTheChannelTakenAndOtherFilesWhole) {
    mkfifo("pipe.qbs", 0600);
    std::filesystem::create_directory("directory.qbs");
    OpenGame(OneBox);
    for (const char* const file : {"directory.qbs", "", "pipe.qbs", "new.qbs"}) {
        SaveGame(file);
        LoadGame(file);
    }
    EXPECT_EQ(BytesOf("new.qbs"), BytesOf(OneBox));
    EXPECT_TRUE(std::filesystem::is_fifo("pipe.qbs"));

    OnFullDisk(100, [] { SaveGame("cut.qbs"); });

    TheNullDesktop.Answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    PutBytes("game.qbs", "mine");
    SaveGame("game.qbs");
    EXPECT_EQ(BytesOf("game.qbs"), "mine") << "a file was cut that could not be written";
    Game.SettingsChanged = true;
    RunCommand(Command::Exit);
    EXPECT_TRUE(Game.ProgramEnding && !std::filesystem::exists("QUIBLNK.CFG"));
}

TEST_F(SavedGame, WithAValueThatCannotBeEndsSilently) {
    const std::vector<std::pair<int, std::string>> faults{
        {1, " 0 "},      {2, " 0 "},  {3, " 1.5 "},      {5, ""},
        {8, " 32768 "},  {9, "one"},  {6, "9999999999"}, {20, "-1 "},
        {20, " 32767 "}, {35, "-1 "}, {35, " 32767 "},   {7, std::string(32768, 'a')}};
    for (const auto& [line, value] : faults) {
        OpenWith(line, value);
        EXPECT_TRUE(IsEnabled(Command::Open) && TheNullDesktop.Boxes.empty()) << line << value;
        EXPECT_EQ(Game.GamePaused, line < 5) << "half of a game waits to be started";
        EXPECT_THROW(OpenForInput(OneBox), std::runtime_error) << "the channel stays taken";
        picPlayingField_MouseMove(1, 1); // takes the highlight off a line, if it is still there
        Form_Resize();
        EXPECT_EQ(TheNullDesktop.Drawings.empty(), line > 4) << "half of a board is drawn";
    }
}

TEST_F(SavedGame, InWhichItIsNobodysTurnGivesWayToAnyOther) {
    for (const Command command :
         {Command::Start, Command::Auto, Command::Draw, Command::Quit, Command::Exit}) {
        OpenWith(5, " 3 ");
        EXPECT_TRUE(Game.GamePaused && IsEnabled(Command::Open));
        Game.GridColumns = 2;
        LetPersonsPlay(1);
        RunCommand(command);
        EXPECT_EQ(Game.BoxCount, command == Command::Auto || command == Command::Draw ? 2 : 1);
        EXPECT_EQ(Game.ProgramEnding, command == Command::Exit) << "or it is asked about";
    }
}

TEST_F(SavedGame, IsPlayedToItsEndOrToldToBeDamagedWhereItBegins) {
    // What comes of a value in each line: P = played, D = told to be damaged, - = not opened.
    const std::pair<const char*, const char*> cases[] = {
        {"1", "DDPPPPPPPPPDPPDDDDDDPPPPPPDPPDDDPDDDDDDPD"
              "PPPPPPDDDPDDDDDPDDPDDDDDDPDDDPPDDPDDDDDD"},
        {"9", "DDPPPPPDPPPDPDDDDDD-PPPPPPDDDDDDDDDDDDDP-"
              "PPPPPPDDDDDDDDDPDDDDDDDDDPDDDDPDDDDDDDDD"}};
    for (const auto& [value, expected] : cases) {
        std::string fates;
        for (int line = 1; line <= 81; ++line) {
            OpenWith(line, value, TwoBoxes);
            if (!Game.GamePaused) {
                fates += '-';
                continue;
            }
            const bool isShown = !TheNullDesktop.Drawings.empty();
            LetPersonsPlay(1);
            TheNullDesktop.Answers = {MessageAnswer::Ok};
            RunGuarded([] { RunCommand(Command::Start); });
            const bool isPlayed =
                Game.BoxCount == 2 && Game.BoxesClaimed == 2 && Game.LinesDrawn == 7;
            EXPECT_EQ(isPlayed, isShown) << line;
            EXPECT_EQ(isPlayed, TheNullDesktop.Boxes.empty()) << line;
            EXPECT_TRUE(IsEnabled(Command::Open) && !Game.GameInPlay && !Game.GamePaused) << line;
            fates += isPlayed ? 'P' : 'D';
        }
        EXPECT_EQ(fates, expected) << value;
    }
}

TEST_F(SavedGame, IsReadFromAnyLineEndsCommasAndQuotes) {
    const auto load = [](const std::string& name) {
        StartFresh();
        LoadGame(QUIBLINK_TESTS "/fuzz/corpus/saved_game/" + name);
        EXPECT_TRUE(Game.GamePaused) << name;
        return Game;
    };
    const GameState oneBox = load("one_box.qbs");
    for (const char* const lineEnds : {"line_feeds.qbs", "carriage_returns.qbs"})
        EXPECT_TRUE(load(lineEnds) == oneBox) << lineEnds;
    EXPECT_EQ(load("commas.qbs").PlayerName.at(1), "a,b");
    const GameState quoted = load("quotes.qbs");
    EXPECT_EQ(quoted.PlayerName, (PerPlayer<std::string>{{"Ann", "B,o"}}));
    EXPECT_TRUE(quoted.Lines == oneBox.Lines);
    const std::string longest(32766, 'a');
    OpenWith(7, "  " + longest + " ");
    EXPECT_EQ(Game.PlayerName.at(1), longest + " ");
}

TEST_F(SavedGame, KeepsEveryName) {
    const std::pair<const char*, const char*> cases[] = {
        {"Zo\u00eb\u00a0\u20ac\u0178\u00ff", "Zo\xeb\xa0\x80\x9f\xff"},
        {"\u03a9 \u4e2d \U0001F600", "\u03a9 \u4e2d \U0001F600"},
        {"\u00c3\u00a9", "\u00c3\u00a9"}, // its Windows-1252 would read as another name
        {"\u0080\u0085", "\u0080\u0085"},
        {"\u0800\ue000\U00010000\U0010ffff", "\u0800\ue000\U00010000\U0010ffff"}};
    for (const auto& [name, bytes] : cases) {
        EXPECT_EQ(EncodeForFile(name), bytes);
        EXPECT_EQ(DecodeFromFile(bytes), name);
    }
    for (const std::string noUtf8 :
         {"\xc0\x80", "\xed\xa0\x80", "\xed\xbf\xbf", "\xf4\x90\x80\x80", "\xe2\x82",
          "\xe0\x9f\xbf", "\xf0\x8f\xbf\xbf", "a\xff", "\xc3", "\x80"})
        EXPECT_NE(DecodeFromFile(noUtf8), noUtf8);
}

} // namespace
