// Whole games from set-up to their end, and commands that arrive in the middle of every wait.
#include "core/turn_loop.h"

#include <set>

#include "core/random.h"
#include "display/command_states.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

// Which of Open, Save, Start, Pause, Quit, Auto, Draw, Exchange and Hint are enabled.
std::string EnabledCommands() {
    std::string states;
    for (const Command command :
         {Command::Open, Command::Save, Command::Start, Command::Pause, Command::Quit,
          Command::Auto, Command::Draw, Command::Exchange, Command::Hint})
        states += IsEnabled(command) ? '+' : '-';
    return states;
}

const std::string Idle = "+-+--++--";
const std::string PersonToMove = "---++---+";
const std::string ComputerToMove = "---++----";
const std::string PausePending = "-++-+---";
const std::string Paused = "-++-+----";
const std::string Prepared = "-++-+--+-";

std::string Captions() {
    return frmQuibsMain.lblPlayer1Active.Caption + "|" + frmQuibsMain.lblPlayer2Active.Caption;
}

// The sum of 1, 2, 4 and 8 for the markers 1 to 4.
int VisibleMarkers() {
    return (frmQuibsMain.shpPlayer1Active.Visible ? 1 : 0) +
           (frmQuibsMain.shpPlayer2Active.Visible ? 2 : 0) +
           (frmQuibsMain.shpPlayer3Active.Visible ? 4 : 0) +
           (frmQuibsMain.shpPlayer4Active.Visible ? 8 : 0);
}

void ExpectNoGameIsRunning() {
    EXPECT_FALSE(Game.GameInPlay || Game.GamePaused || Game.QuitRequested);
    EXPECT_EQ(EnabledCommands(), Idle);
}

void ExpectPlayedToTheEnd() {
    ExpectNoGameIsRunning();
    EXPECT_TRUE(BoardIsSound());
    EXPECT_GT(Game.BoxCount, 0);
    EXPECT_EQ(Game.BoxesClaimed, Game.BoxCount);
    EXPECT_EQ(Game.LinesDrawn, Game.LineCount);
    EXPECT_EQ(VisibleMarkers(), 15);
}

void ExpectGivenUp() {
    ExpectNoGameIsRunning();
    EXPECT_EQ(Game.BoxCount + Game.LineCount, 0);
    EXPECT_EQ(Game.PlayerScore, PerPlayer<Integer>{});
    EXPECT_EQ(Game.GhostLine + Game.ComputerGhostLine + Game.ChosenLine + Game.LastLine, 0);
    EXPECT_EQ(Captions(), "|");
    EXPECT_EQ(VisibleMarkers(), 0);
    EXPECT_EQ(frmQuibsMain.txtBoxesStatus.Text + frmQuibsMain.txtLinesStatus.Text, "");
    EXPECT_TRUE(TheNullDesktop.Drawings.empty());
}

// From now on persons play, and every yield is looked at.
void WatchGame(std::uint32_t seed) {
    LetPersonsPlay(seed);
    TheNullDesktop.WhenYielding = [] {
        ASSERT_TRUE(BoardIsSound());
        ASSERT_EQ(IsEnabled(Command::Hint), Game.GameInPlay && !Game.MouseDownSeen);
        ASSERT_TRUE(!Game.GameInPlay || VisibleMarkers() == Game.CurrentPlayer);
    };
}

// A game of one row that waits for Start, as after Draw.
void Prepare(int columns, Integer firstKind, Integer secondKind, const std::vector<int>& drawn) {
    SetUpGame(columns, 1, firstKind, secondKind);
    DrawForNobody(drawn);
    Game.GameInPlay = false;
    Game.GamePaused = true;
    EnterPhase(Phase::Prepared);
}

struct Wait {
    const char* Name;
    int Columns;
    Integer FirstKind, SecondKind;
    std::vector<int> Drawn; // none = begins with a new game
    double Seconds;         // from Start to the middle of the wait
    std::string Enabled;
};

class EveryWait : public ::testing::TestWithParam<Wait> {
protected:
    // Plays a game in which `event` happens during the wait.
    static void PlayWith(const std::function<void()>& event) {
        StartFresh();
        const Wait& wait = GetParam();
        Prepare(wait.Columns, wait.FirstKind, wait.SecondKind, wait.Drawn);
        Game.GamePaused = !wait.Drawn.empty();
        WatchGame(1);
        bool happened = false;
        AfterSeconds(wait.Seconds, [&] {
            EXPECT_EQ(EnabledCommands(), wait.Enabled);
            EXPECT_EQ(Game.LastLine == 0, wait.Drawn.empty());
            happened = true;
            event();
        });
        RunCommand(Command::Start);
        EXPECT_TRUE(happened);
    }

    static bool PersonIsAwaited() { return GetParam().Enabled == PersonToMove; }
};

TEST_P(EveryWait, IsNotDisturbedByCommandsOutOfPlace) {
    PlayWith([] {
        const GameState before = Game;
        const MainWindowControls controls = frmQuibsMain;
        for (const auto command :
             {mnuStart_Click, mnuAuto_Click, mnuDraw_Click, mnuExchange_Click, mnuHint_Click})
            if (command != mnuHint_Click || !PersonIsAwaited())
                command();
        EXPECT_TRUE(Game == before);
        EXPECT_EQ(frmQuibsMain, controls);
    });
    ExpectPlayedToTheEnd();
}

TEST_P(EveryWait, PausesAndIsResumedWithoutANewGame) {
    PlayWith([] {
        if (PersonIsAwaited())
            PointAt(UndrawnLines().front());
        mnuPause_Click();
        mnuPause_Click();
        EXPECT_EQ(EnabledCommands(), PausePending + GetParam().Enabled.back());
        TheNullDesktop.WhenYielding = nullptr;
    });
    EXPECT_TRUE(Game.GamePaused && !Game.GameInPlay && Game.MouseDownSeen);
    EXPECT_EQ(EnabledCommands(), Paused);
    EXPECT_EQ(Captions(), Game.PlayerName.at(Game.CurrentPlayer) + "'s Turn|GAME PAUSED");
    EXPECT_EQ(VisibleMarkers(), 0);
    EXPECT_EQ(Game.GhostLine, 0);
    WatchGame(1);
    const int linesDrawn = Game.LinesDrawn;
    AfterSeconds(0, [linesDrawn] { EXPECT_LE(Game.LinesDrawn - linesDrawn, 1); });
    RunCommand(Command::Start);
    ExpectPlayedToTheEnd();
}

TEST_P(EveryWait, IsGivenUpByQuitPausingOrNot) {
    for (const bool isPausing : {false, true}) {
        PlayWith([=] {
            if (isPausing)
                mnuPause_Click();
            TheNullDesktop.Answers = {MessageAnswer::Yes};
            mnuQuit_Click();
            EXPECT_EQ(EnabledCommands(), GetParam().Enabled) << "until the loop has ended";
        });
        ExpectGivenUp();
        RunCommand(Command::Start);
        ExpectPlayedToTheEnd();
    }
}

TEST_P(EveryWait, EndsAtOnceWithTheProgram) {
    for (const auto close : {Form_Unload, mnuExit_Click}) {
        double closedAt = 0;
        PlayWith([&] {
            if (PersonIsAwaited())
                PressLine(UndrawnLines().front()); // which is refused in a game that goes on
            TheNullDesktop.Answers.assign(close == mnuExit_Click ? 1 : 0, MessageAnswer::Yes);
            close();
            closedAt = TheNullDesktop.SecondsWaited;
        });
        EXPECT_TRUE(Game.ProgramEnding);
        EXPECT_EQ(TheNullDesktop.SecondsWaited, closedAt);
        EXPECT_TRUE(TheNullDesktop.Answers.empty());
    }
}

// Pauses and takes it back, and answers No to Quit and Exit.
void ChangeMind() {
    const std::string before = EnabledCommands() + Captions();
    mnuPause_Click();
    mnuStart_Click();
    TheNullDesktop.Answers = {MessageAnswer::No, MessageAnswer::No};
    mnuQuit_Click();
    mnuExit_Click();
    EXPECT_EQ(EnabledCommands() + Captions(), before);
    EXPECT_EQ(TheNullDesktop.Boxes.at(0).Text, "Are you sure you want to quit the current game?");
    EXPECT_EQ(TheNullDesktop.Boxes.at(1).Text, "A game is in progress, exit anyway?");
}

TEST_P(EveryWait, GoesOnAfterAChangeOfMindAtMidnightAndWithPlayersOfOtherKinds) {
    const std::function<void()> events[] = {
        ChangeMind,
        [] { TheNullDesktop.Clock = 1; },
        [] {
            Game.PlayerKind = {{Humanoid, Humanoid}};
        },
        [] {
            Game.PlayerKind = {{ComputerAverage, ComputerCheat}};
        },
    };
    for (const auto& event : events) {
        PlayWith(event);
        ExpectPlayedToTheEnd();
        EXPECT_LT(TheNullDesktop.SecondsWaited, 60);
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfAGame, EveryWait,
    ::testing::Values(
        Wait{"Start", 3, ComputerAverage, ComputerCheat, {}, 1.9, ComputerToMove},
        Wait{"Person", 3, Humanoid, ComputerAverage, {2, 4, 5, 7, 9}, 5, PersonToMove},
        Wait{"BeforeCapture", 3, ComputerCheat, ComputerAverage, {1, 4, 7}, 0.6, ComputerToMove},
        Wait{"Capture", 3, ComputerAverage, Humanoid, {1, 2, 3, 4, 5, 6, 7}, 0.3, ComputerToMove},
        Wait{"TurnPause", 3, ComputerAverage, ComputerCheat, {1}, 0.2, ComputerToMove},
        Wait{"Sacrifice", 2, ComputerIntelligent, Humanoid, {1, 2, 3, 4}, 0.5, ComputerToMove}),
    [](const auto& wait) { return wait.param.Name; });

class TurnLoop : public GameTest {};

TEST_F(TurnLoop, PlaysEveryPairOfPlayersToTheEndWithASoundBoardInEveryYield) {
    for (const auto& [columns, rows] : {std::pair{10, 10}, {7, 4}, {1, 1}, {1, 6}, {5, 1}, {2, 2}})
        for (Integer firstKind = Humanoid; firstKind <= ComputerCheat; ++firstKind)
            for (Integer secondKind = Humanoid; secondKind <= ComputerCheat; ++secondKind) {
                SCOPED_TRACE(::testing::Message() << columns << " by " << rows << " boxes, kinds "
                                                  << firstKind << " and " << secondKind);
                StartFresh();
                Game.GridColumns = ToInteger(columns);
                Game.GridRows = ToInteger(rows);
                Game.PlayerKind = {{firstKind, secondKind}};
                for (const int seed : {1, 2, 3}) {
                    SeedRandom(seed);
                    WatchGame(seed);
                    RunCommand(seed == 3 ? Command::Auto : Command::Start);
                    ExpectPlayedToTheEnd();
                }
            }
}

TEST_F(TurnLoop, EndsAFullBoardWithoutWaitingForAMove) {
    Prepare(1, Humanoid, Humanoid, {1, 2, 3, 4});
    RunCommand(Command::Start);
    ExpectPlayedToTheEnd();
}

TEST_F(TurnLoop, TellsTheEndOfAGameAndBlinksForThreeSecondsUndisturbed) {
    const struct {
        Integer Kind;
        int Player; // who takes the last box of two; player 1 has the other
        const char* Captions;
        Color Fill;
        int ComputerSounds;
    } cases[] = {{ComputerAverage, 1, "The Winner Is:|Colossus", LightRed, 1},
                 {Humanoid, 1, "The Winner Is:|Colossus", LightRed, 0},
                 {ComputerAverage, 2, "It's A Draw.|", Black, 0}};
    for (const auto& c : cases) {
        StartFresh();
        Game.PlayerColor.at(1) = LightRed;
        frmQuibsMain.shpPlayer4Active.FillColor = LightGreen;
        Game.ComputerWinSounds = {{"none"}, 0};
        Prepare(2, c.Kind, c.Kind, {1, 3, 5, 6, 2, 4});
        Game.CurrentPlayer = ToInteger(c.Player);
        LetPersonsPlay(1);
        std::string blinks;
        double since = 0;
        TheNullDesktop.WhenYielding = [&] {
            if (!Game.GameOverShown) {
                since = TheNullDesktop.SecondsWaited;
                return;
            }
            for (const auto command :
                 {mnuPause_Click, mnuQuit_Click, mnuExchange_Click, mnuHint_Click})
                command();
            EXPECT_EQ(EnabledCommands(), Idle);
            blinks += VisibleMarkers() == 3 ? "1" : VisibleMarkers() == 12 ? "2" : "?";
        };
        RunCommand(Command::Start);
        blinks.erase(std::unique(blinks.begin(), blinks.end()), blinks.end());
        EXPECT_EQ(blinks, "121212121212");
        EXPECT_NEAR(TheNullDesktop.SecondsWaited - since, 3.1, 0.3);
        EXPECT_EQ(Captions(), c.Captions);
        EXPECT_EQ(frmQuibsMain.shpPlayer4Active, (Shape{c.Fill, true}));
        EXPECT_EQ(Game.ComputerWinSounds.Next, c.ComputerSounds);
        ExpectPlayedToTheEnd();
    }
}

TEST_F(TurnLoop, StartsTwentyGamesDuringBlinksOnOneStackAndEndsWithTheProgram) {
    Game.GridColumns = Game.GridRows = 1;
    std::set<void*> frames;
    double closedAt = 0;
    TheNullDesktop.WhenYielding = [&, games = 0]() mutable {
        if (!Game.GameOverShown || Game.CommandAfterGameOver)
            return;
        frames.insert(__builtin_frame_address(0));
        RunCommand(++games % 2 == 0 ? Command::Start : Command::Auto);
        if (games == 20)
            Form_Unload();
        closedAt = TheNullDesktop.SecondsWaited;
    };
    RunCommand(Command::Start);
    EXPECT_EQ(frames.size(), 1U);
    EXPECT_TRUE(Game.ProgramEnding);
    EXPECT_NEAR(TheNullDesktop.SecondsWaited, closedAt, 0.3);
}

TEST_F(TurnLoop, TakesExchangeOnlyForAPreparedGame) {
    Prepare(1, ComputerAverage, Humanoid, {1, 2, 3});
    AfterSeconds(1.6, [] { RunCommand(Command::Draw); });
    RunCommand(Command::Start);
    EXPECT_EQ(EnabledCommands(), Prepared) << "drawn when the blink was cut short";
    EXPECT_LT(TheNullDesktop.SecondsWaited, 1.7);
    const int other = OtherPlayer(Game.CurrentPlayer);
    RunCommand(Command::Exchange);
    EXPECT_EQ(Game.CurrentPlayer, other);
    EXPECT_EQ(Captions(), Game.PlayerName.at(other) + "'s Turn|GAME PAUSED");
    TheNullDesktop.Answers = {MessageAnswer::Yes};
    RunCommand(Command::Quit);
    mnuExchange_Click();
    ExpectGivenUp();
}

TEST_F(TurnLoop, SurvivesAFailureInPlayAndWhileTheEndIsShown) {
    for (const double seconds : {0.1, 1.6}) {
        Prepare(1, ComputerAverage, Humanoid, {1, 2, 3});
        AfterSeconds(seconds, [] {
            if (Game.GameOverShown)
                RunCommand(Command::Start);
            throw std::out_of_range("a bad index");
        });
        TheNullDesktop.Answers = {MessageAnswer::Ok};
        RunGuarded([] { RunCommand(Command::Start); });
        ExpectGivenUp();
        EXPECT_EQ(TheNullDesktop.Boxes.back().Text, "The game had to be ended: a bad index.");
        LetPersonsPlay(1);
        const double before = TheNullDesktop.SecondsWaited;
        RunCommand(Command::Start);
        ExpectPlayedToTheEnd();
        EXPECT_GT(TheNullDesktop.SecondsWaited - before, 3);
    }
}

} // namespace
