// The waits of a game and all that may arrive in the middle of them, and the end of a game.
#include "core/play/turn_loop.h"

#include <system_error>

#include "core/rules/moves.h"
#include "display/command_states.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

using enum MessageAnswer;

// Which commands are enabled, of those that are not always.
std::string EnabledCommands() {
    using enum Command;
    std::string states;
    for (const Command command : {Open, Save, Start, Pause, Quit, Auto, Draw, Exchange, Hint})
        states += IsEnabled(command) ? '+' : '-';
    return states;
}

const std::string Idle = "+-+--++--";
const std::string PersonToMove = "---++---+";
const std::string ComputerToMove = "---++----";
const std::string Paused = "-++-+----";

std::string Captions() {
    return frmQuibsMain.lblPlayer1Active.Caption + "|" + frmQuibsMain.lblPlayer2Active.Caption;
}

// The sum of 1, 2, 4 and 8 for the markers 1 to 4.
int VisibleMarkers() {
    const MainWindowControls& form = frmQuibsMain;
    return form.shpPlayer1Active.Visible + 2 * form.shpPlayer2Active.Visible +
           4 * form.shpPlayer3Active.Visible + 8 * form.shpPlayer4Active.Visible;
}

void ExpectNoGameIsRunning() {
    EXPECT_FALSE(Game.GameInPlay || Game.GamePaused || Game.QuitRequested || Game.GameOverShown);
    EXPECT_EQ(EnabledCommands(), Idle);
}

void ExpectPlayedToTheEnd() {
    ExpectNoGameIsRunning();
    EXPECT_TRUE(BoardIsSound());
    EXPECT_EQ(Game.LinesDrawn, Game.LineCount);
    EXPECT_EQ(VisibleMarkers(), 15);
}

void ExpectGivenUp() {
    ExpectNoGameIsRunning();
    EXPECT_EQ(Game.BoxCount + Game.LineCount, 0);
    EXPECT_EQ(Game.PlayerScore, PerPlayer<Integer>{});
    EXPECT_EQ(Game.GhostLine + Game.ComputerGhostLine + Game.ChosenLine + Game.LastLine, 0);
    EXPECT_EQ(Captions(), "|");
    const std::string texts = TextsOf(frmQuibsMain);
    EXPECT_TRUE(texts.ends_with("||") && texts.find("of an old game") > texts.size());
    EXPECT_TRUE(VisibleMarkers() == 0 && TheNullDesktop.Drawings.empty());
}

// From now on persons play, and every yield is looked at.
void WatchGame(std::uint32_t seed) {
    LetPersonsPlay(seed);
    TheNullDesktop.WhenYielding = [] {
        ASSERT_TRUE(BoardIsSound());
        ASSERT_EQ(IsEnabled(Command::Hint), Game.GameInPlay && !Game.MouseDownSeen);
        if (!Game.GameInPlay)
            return;
        ASSERT_EQ(VisibleMarkers(), Game.CurrentPlayer);
        ASSERT_EQ(Captions(), Game.CurrentPlayer == 1 ? "Colossus's Turn|" : "|Guardian's Turn");
    };
}

// A game of one row that waits for Start, as after Draw.
void Prepare(int columns, Integer firstKind, Integer secondKind, const std::vector<int>& drawn) {
    SetUpGame(columns, 1, firstKind, secondKind);
    DrawForNobody(drawn);
    Game.GameInPlay = false;
    Game.GamePaused = true;
    EnterPhase(Phase::Prepared);
    frmQuibsMain.txtPlayer1Status.Text = frmQuibsMain.txtPlayer2Status.Text = "of an old game";
}

struct Wait {
    const char* Name;
    int Columns;
    Integer FirstKind, SecondKind;
    std::vector<int> Drawn; // none = begins with a new game
    double Seconds;         // from Start to the middle of the wait
};

const Wait Waits[] = {
    {"the start", 3, ComputerAverage, ComputerCheat, {}, 1.9},
    {"a person", 3, Humanoid, ComputerAverage, {2, 4, 5, 7, 9}, 5},
    {"the pause before a capture", 3, ComputerCheat, ComputerAverage, {1, 4, 7}, 0.6},
    {"a capture", 3, ComputerAverage, Humanoid, {1, 2, 3, 4, 5, 6, 7}, 0.3},
    {"the pause between two turns", 3, ComputerAverage, ComputerCheat, {1}, 0.2},
    {"a sacrifice", 2, ComputerIntelligent, Humanoid, {1, 2, 3, 4}, 0.5},
};

void ExpectPaused() {
    EXPECT_TRUE(Game.GamePaused && !Game.GameInPlay && Game.MouseDownSeen);
    EXPECT_EQ(EnabledCommands(), Paused);
    EXPECT_EQ(Captions(), Game.PlayerName.at(Game.CurrentPlayer) + "'s Turn|GAME PAUSED");
    EXPECT_EQ(VisibleMarkers() + Game.GhostLine, 0);
    EXPECT_NE(TheNullDesktop.Drawings.back().DrawnColor, Game.GhostColor) << "left painted";
    AfterSeconds(0, [drawn = Game.LinesDrawn] { EXPECT_GE(Game.LinesDrawn, drawn) << "resumed"; });
}

void ExpectClosed() {
    EXPECT_TRUE(Game.ProgramEnding && TheNullDesktop.Answers.empty());
    for (const MessageBox& box : TheNullDesktop.Boxes)
        EXPECT_EQ(box.Text, "A game is in progress, exit anyway?");
}

void Fail() {
    Integer full = 32767;
    Increase(full, 1);
}

void FailElsewhere() {
    throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
}

// In the wait for a person this line would be refused if the game went on.
void PointAtFirstLine() {
    PointAt(UndrawnLines().front());
}

// What may happen in the middle of a wait, and what must come of it.
struct Event {
    const char* Name;
    void (*ExpectOutcome)();
    std::deque<MessageAnswer> Answers;
    std::vector<std::function<void()>> Steps;
};

const Event Events[] = {
    {"nothing to do", ExpectPlayedToTheEnd, {}, {mnuStart_Click, mnuAuto_Click, mnuDraw_Click}},
    {"a hint", ExpectPlayedToTheEnd, {}, {mnuHint_Click}},
    {"a pause taken back", ExpectPlayedToTheEnd, {}, {mnuPause_Click, mnuStart_Click}},
    {"No to an end", ExpectPlayedToTheEnd, {No, No}, {mnuQuit_Click, mnuExit_Click}},
    {"midnight", ExpectPlayedToTheEnd, {}, {[] { TheNullDesktop.Clock = 1; }}},
    {"a person", ExpectPlayedToTheEnd, {}, {[] { Game.PlayerKind.at(1) = Humanoid; }}},
    {"a computer", ExpectPlayedToTheEnd, {}, {[] { Game.PlayerKind.at(1) = ComputerAverage; }}},
    {"a pause", ExpectPaused, {}, {PointAtFirstLine, mnuPause_Click, mnuPause_Click}},
    {"a press and a pause", ExpectPaused, {}, {PointAtFirstLine, PressHere, mnuPause_Click}},
    {"Quit", ExpectGivenUp, {Yes}, {mnuQuit_Click}},
    {"Quit after a pause", ExpectGivenUp, {Yes}, {mnuPause_Click, mnuQuit_Click}},
    {"an unrelated failure", ExpectPlayedToTheEnd, {Ok}, {[] { RunGuarded(FailElsewhere); }}},
    {"a failure", ExpectGivenUp, {Ok}, {ApplyMove}}, // of no line, or of a drawn one
    {"a failing command", ExpectGivenUp, {Ok}, {[] { RunGuarded(Fail); }}},
    {"Exit", ExpectClosed, {Yes}, {mnuExit_Click}},
    {"closing", ExpectClosed, {}, {PointAtFirstLine, PressHere, Form_Unload}},
};

class TurnLoop : public GameTest {};

TEST_F(TurnLoop, ObeysInTheMiddleOfEveryWaitAndLosesNoTime) {
    for (const Wait& wait : Waits)
        for (const Event& event : Events) {
            SCOPED_TRACE(std::string(event.Name) + " during " + wait.Name);
            StartFresh();
            Prepare(wait.Columns, wait.FirstKind, wait.SecondKind, wait.Drawn);
            Game.GamePaused = !wait.Drawn.empty();
            WatchGame(1);
            double happenedAt = 0;
            AfterSeconds(wait.Seconds, [&] {
                happenedAt = TheNullDesktop.SecondsWaited;
                const std::string enabled = EnabledCommands();
                EXPECT_EQ(enabled, wait.FirstKind == Humanoid ? PersonToMove : ComputerToMove);
                EXPECT_EQ(Game.LastLine == 0, wait.Drawn.empty());
                const MainWindowControls controls = frmQuibsMain;
                TheNullDesktop.Answers = event.Answers;
                for (const auto& step : event.Steps)
                    step();
                if (Game.GamePaused)
                    EXPECT_EQ(EnabledCommands(), Paused);
                else if (!Game.QuitRequested)
                    EXPECT_EQ(frmQuibsMain, controls);
                else
                    EXPECT_EQ(EnabledCommands().substr(0, 8), ComputerToMove.substr(0, 8));
            });
            RunGuarded([] { RunCommand(Command::Start); });
            EXPECT_GT(happenedAt, 0);
            EXPECT_LT(TheNullDesktop.SecondsWaited, Game.ProgramEnding ? happenedAt + 0.001 : 60);
            event.ExpectOutcome();
            if (Game.ProgramEnding)
                continue;
            RunCommand(Command::Start);
            ExpectPlayedToTheEnd();
        }
}

// Commands that arrive together: the second comes while the question of the first is open.
TEST_F(TurnLoop, CarriesOutNothingWhileAQuestionIsOpen) {
    for (const Command asking : {Command::Quit, Command::Exit})
        for (std::size_t second = 0; second < CommandCount; ++second) {
            StartFresh();
            Prepare(3, ComputerAverage, ComputerCheat, {1});
            TheNullDesktop.Answers = {No, Yes};
            TheNullDesktop.WhenAsked = [second, prepared = frmQuibsMain] {
                RunCommand(static_cast<Command>(second));
                EXPECT_TRUE(SaveGameAs(".", "saved"));
                EXPECT_EQ(frmQuibsMain, prepared) << second;
            };
            RunCommand(asking);
            RunCommand(asking);
            EXPECT_EQ(TheNullDesktop.Boxes.size(), 2) << second;
            EXPECT_TRUE(TheNullDesktop.Forms.empty() && !std::filesystem::exists("saved.qbs"));
            asking == Command::Quit ? ExpectGivenUp() : ExpectClosed();
        }
}

TEST_F(TurnLoop, LooksAgainForTheGameThatAQuestionWasAbout) {
    TheNullDesktop.WhenAsked = AbandonGame; // as after a failure
    TheNullDesktop.Answers = {Yes, Yes};
    PutBytes("saved.qbs", "mine");
    for (const Command asking : {Command::Quit, Command::Save}) {
        Prepare(3, ComputerAverage, ComputerCheat, {1});
        asking == Command::Quit ? RunCommand(asking) : (void)SaveGameAs(".", "saved");
        ExpectGivenUp();
    }
    EXPECT_EQ(BytesOf("saved.qbs"), "mine");
}

TEST_F(TurnLoop, EndsForWhatBreaksTheGameAndForNothingElse) {
    TheNullDesktop.Answers = {Ok, Ok, Ok, Ok};
    Prepare(1, ComputerAverage, ComputerCheat, {1, 2, 3, 4});
    TheNullDesktop.WhenYielding = Fail; // at the end, which is being shown
    RunCommand(Command::Start);
    ExpectGivenUp();
    TheNullDesktop.WhenYielding = nullptr;
    Prepare(3, ComputerAverage, ComputerCheat, {1});
    RunGuarded(Fail);
    ExpectGivenUp();
    const GameState idle = Game;
    RunGuarded(Fail);
    EXPECT_TRUE(Game == idle);
    TheNullDesktop.PictureWidth = 1'000'000; // the field is too large for its numbers
    Game.GridColumns = 2000;
    RunCommand(Command::Draw);
    ExpectNoGameIsRunning();
    const std::string damaged = "The game had to be ended, because its board is damaged.";
    const auto& boxes = TheNullDesktop.Boxes;
    EXPECT_TRUE(boxes.at(0).Text == damaged && boxes.at(1).Text == damaged);
    EXPECT_EQ(boxes.at(2).Text, "That could not be done, because something unforeseen happened.");
    EXPECT_EQ(boxes.at(3).Text, damaged);
}

} // namespace
