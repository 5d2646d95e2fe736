// Whole games from set-up to their end, and commands that arrive in the middle of every wait.
#include "core/turn_loop.h"

#include <set>
#include <tuple>

#include "core/random.h"
#include "display/command_states.h"
#include "support/game_test.h"
#include "support/person.h"
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

constexpr const char* Idle = "+-+--++--";
constexpr const char* PersonToMove = "---++---+";
constexpr const char* ComputerToMove = "---++----";
constexpr const char* PausePending = "-++-+---";
constexpr const char* Paused = "-++-+----";
constexpr const char* Prepared = "-++-+--+-";

std::string Captions() {
    return frmQuibsMain.lblPlayer1Active.Caption + "|" + frmQuibsMain.lblPlayer2Active.Caption;
}

int VisibleMarkers() {
    return (frmQuibsMain.shpPlayer1Active.Visible ? 1 : 0) +
           (frmQuibsMain.shpPlayer2Active.Visible ? 2 : 0) +
           (frmQuibsMain.shpPlayer3Active.Visible ? 4 : 0) +
           (frmQuibsMain.shpPlayer4Active.Visible ? 8 : 0);
}

void CheckEveryYield() {
    TheNullDesktop.WhenYielding = [] {
        ASSERT_TRUE(BoardIsSound());
        ASSERT_TRUE(!Game.GameInPlay || IsPlayer(Game.CurrentPlayer));
    };
}

void ExpectPlayedToTheEnd() {
    EXPECT_EQ(Game.BoxesClaimed, Game.BoxCount);
    EXPECT_EQ(Game.LinesDrawn, Game.LineCount);
    EXPECT_GT(Game.BoxCount, 0);
    EXPECT_TRUE(BoardIsSound());
    EXPECT_FALSE(Game.GameInPlay || Game.GamePaused || Game.QuitRequested);
    EXPECT_EQ(EnabledCommands(), Idle);
    EXPECT_EQ(VisibleMarkers(), 15);
}

void ExpectNoGame() {
    EXPECT_FALSE(Game.GameInPlay || Game.GamePaused || Game.QuitRequested);
    EXPECT_EQ(EnabledCommands(), Idle);
    EXPECT_EQ(Captions(), "|");
    EXPECT_EQ(VisibleMarkers(), 0);
    EXPECT_EQ(Game.BoxCount + Game.LineCount, 0);
    EXPECT_EQ(Game.GhostLine + Game.ComputerGhostLine + Game.ChosenLine + Game.LastLine, 0);
    EXPECT_EQ(Game.PlayerScore, PerPlayer<Integer>{});
    EXPECT_EQ(frmQuibsMain.txtBoxesStatus.Text + frmQuibsMain.txtLinesStatus.Text, "");
    EXPECT_TRUE(TheNullDesktop.Drawings.empty());
}

// A game that waits for Start, as after Draw.
void Prepare(int columns, int rows, Integer firstKind, Integer secondKind,
             const std::vector<int>& drawn) {
    SetUpGame(columns, rows, firstKind, secondKind);
    DrawForNobody(drawn);
    Game.GameInPlay = false;
    Game.GamePaused = true;
    EnterPhase(Phase::Prepared);
}

using Size = std::tuple<int, int>;

class PairOfPlayers : public ::testing::TestWithParam<std::tuple<Size, Integer, Integer>> {
protected:
    void SetUp() override { StartFresh(); }
};

TEST_P(PairOfPlayers, PlaysToTheEndWithASoundBoardAfterEveryLine) {
    const auto [size, firstKind, secondKind] = GetParam();
    std::tie(Game.GridColumns, Game.GridRows) = size;
    Game.PlayerKind.at(1) = firstKind;
    Game.PlayerKind.at(2) = secondKind;
    for (const int seed : {1, 2, 3}) {
        SeedRandom(seed);
        LetPersonsPlay(seed);
        CheckEveryYield();
        RunCommand(seed == 3 ? Command::Auto : Command::Start);
        ExpectPlayedToTheEnd();
    }
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, PairOfPlayers,
                         ::testing::Combine(::testing::Values(Size{10, 10}, Size{7, 4}, Size{1, 1},
                                                              Size{1, 6}, Size{5, 1}, Size{2, 2}),
                                            ::testing::Range<Integer>(0, 4),
                                            ::testing::Range<Integer>(0, 4)));

struct Wait {
    const char* Name;
    int Columns;
    Integer FirstKind, SecondKind;
    std::vector<int> Drawn; // none = begins with a new game
    double Seconds;         // from Start to the middle of the wait
    const char* Enabled;
};

class EveryWait : public ::testing::TestWithParam<Wait> {
protected:
    // Plays a game in which `event` happens during the wait.
    static void PlayWith(const std::function<void()>& event) {
        StartFresh();
        const Wait& wait = GetParam();
        if (wait.Drawn.empty()) {
            SetUpGame(wait.Columns, 1, wait.FirstKind, wait.SecondKind);
            Game.GameInPlay = false;
        } else {
            Prepare(wait.Columns, 1, wait.FirstKind, wait.SecondKind, wait.Drawn);
        }
        LetPersonsPlay(1);
        CheckEveryYield();
        bool happened = false;
        AfterSeconds(wait.Seconds, [&] {
            EXPECT_EQ(EnabledCommands(), wait.Enabled);
            EXPECT_EQ(Game.MouseDownSeen, !PersonIsAwaited());
            happened = true;
            event();
        });
        RunCommand(Command::Start);
        EXPECT_TRUE(happened);
    }

    static bool PersonIsAwaited() { return GetParam().Enabled == std::string(PersonToMove); }
    static bool GameIsOver() { return GetParam().Enabled == std::string(Idle); }
};

TEST_P(EveryWait, IsNotDisturbedByCommandsOutOfPlace) {
    for (const auto command : {mnuStart_Click, mnuAuto_Click, mnuDraw_Click, mnuExchange_Click,
                               mnuPause_Click, mnuQuit_Click, mnuHint_Click}) {
        const bool endsGame = command == mnuPause_Click || command == mnuQuit_Click;
        const bool startsGame =
            command == mnuStart_Click || command == mnuAuto_Click || command == mnuDraw_Click;
        if ((GameIsOver() && startsGame) || (!GameIsOver() && endsGame) ||
            (PersonIsAwaited() && command == mnuHint_Click))
            continue;
        PlayWith([&] {
            const GameState before = Game;
            const MainWindowControls controls = frmQuibsMain;
            command();
            EXPECT_TRUE(Game == before);
            EXPECT_EQ(frmQuibsMain, controls);
        });
        ExpectPlayedToTheEnd();
    }
}

TEST_P(EveryWait, PausesAndIsResumedWithoutANewGame) {
    if (GameIsOver())
        return;
    PlayWith([] {
        const char hint = EnabledCommands().back();
        if (PersonIsAwaited())
            PointAt(UndrawnLines().front());
        mnuPause_Click();
        mnuPause_Click();
        EXPECT_EQ(EnabledCommands(), PausePending + std::string(1, hint));
    });
    EXPECT_TRUE(Game.GamePaused && !Game.GameInPlay && Game.MouseDownSeen);
    EXPECT_EQ(EnabledCommands(), Paused);
    const int player = Game.CurrentPlayer;
    EXPECT_EQ(Captions(), Game.PlayerName.at(player) + "'s Turn|GAME PAUSED");
    EXPECT_EQ(VisibleMarkers(), 0);
    EXPECT_EQ(Game.GhostLine, 0);
    const int linesDrawn = Game.LinesDrawn;
    bool isFirstYield = true;
    TheNullDesktop.WhenYielding = [&] {
        if (isFirstYield && UndrawnLines().size() > 1) {
            EXPECT_EQ(VisibleMarkers(), Game.CurrentPlayer);
            EXPECT_LE(Game.LinesDrawn, linesDrawn + 1);
        }
        isFirstYield = false;
    };
    RunCommand(Command::Start);
    ExpectPlayedToTheEnd();
}

TEST_P(EveryWait, GoesOnWhenAPauseOrAQuitIsTakenBack) {
    if (GameIsOver())
        return;
    PlayWith([] {
        const std::string caption = Captions();
        mnuPause_Click();
        mnuStart_Click();
        TheNullDesktop.Answers = {MessageAnswer::No, MessageAnswer::No};
        mnuQuit_Click();
        mnuExit_Click();
        EXPECT_EQ(EnabledCommands(), GetParam().Enabled);
        EXPECT_EQ(Captions(), caption);
    });
    ExpectPlayedToTheEnd();
    EXPECT_EQ(TheNullDesktop.Boxes.at(0).Text, "Are you sure you want to quit the current game?");
    EXPECT_EQ(TheNullDesktop.Boxes.at(1).Text, "A game is in progress, exit anyway?");
}

TEST_P(EveryWait, IsGivenUpByQuitPausingOrNot) {
    if (GameIsOver())
        return;
    for (const bool isPausing : {false, true}) {
        PlayWith([=] {
            if (isPausing)
                mnuPause_Click();
            TheNullDesktop.Answers = {MessageAnswer::Yes};
            mnuQuit_Click();
            EXPECT_EQ(EnabledCommands(), GetParam().Enabled) << "until the loop has ended";
        });
        ExpectNoGame();
        RunCommand(Command::Start);
        ExpectPlayedToTheEnd();
    }
}

TEST_P(EveryWait, EndsAtOnceWithTheProgram) {
    double closedAt = 0;
    for (const auto close : {Form_Unload, mnuExit_Click}) {
        PlayWith([&] {
            if (PersonIsAwaited())
                PressLine(UndrawnLines().front());
            if (!GameIsOver() && close == mnuExit_Click)
                TheNullDesktop.Answers = {MessageAnswer::Yes};
            close();
            closedAt = TheNullDesktop.SecondsWaited;
        });
        EXPECT_TRUE(Game.ProgramEnding);
        EXPECT_EQ(TheNullDesktop.SecondsWaited, closedAt);
        EXPECT_TRUE(TheNullDesktop.Answers.empty());
    }
}

TEST_P(EveryWait, EndsWithTheDayToo) {
    PlayWith([] { TheNullDesktop.Clock = 1; });
    ExpectPlayedToTheEnd();
}

TEST_P(EveryWait, LetsThePlayersBecomeOfOtherKinds) {
    for (const Integer kind : {Humanoid, ComputerAverage, ComputerCheat}) {
        PlayWith([=] { Game.PlayerKind = {{kind, kind}}; });
        ExpectPlayedToTheEnd();
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfAGame, EveryWait,
    ::testing::Values(
        Wait{"Start", 3, ComputerAverage, ComputerCheat, {}, 1, ComputerToMove},
        Wait{"Person", 3, Humanoid, Humanoid, {1}, 5, PersonToMove},
        Wait{"BeforeCapture", 3, ComputerCheat, ComputerAverage, {1, 4, 7}, 0.6, ComputerToMove},
        Wait{"Capture",
             4,
             ComputerAverage,
             Humanoid,
             {1, 2, 3, 4, 5, 6, 7, 8, 9},
             0.3,
             ComputerToMove},
        Wait{"TurnPause", 3, ComputerAverage, ComputerCheat, {1}, 0.2, ComputerToMove},
        Wait{"Sacrifice", 2, ComputerIntelligent, Humanoid, {1, 2, 3, 4}, 0.5, ComputerToMove},
        Wait{"Blink", 1, ComputerAverage, Humanoid, {1, 2, 3}, 1.6, Idle}),
    [](const auto& wait) { return wait.param.Name; });

class TurnLoop : public GameTest {};

TEST_F(TurnLoop, RefusesAnIllegalLineAndAsksThePersonAgain) {
    Prepare(3, 1, Humanoid, ComputerAverage, {1, 4, 7, 2, 5});
    int waits = 0;
    TheNullDesktop.WhenIdle = [&] {
        TheNullDesktop.Answers = {MessageAnswer::Ok};
        PressLine(waits++ == 0 ? 9 : UndrawnLines().front());
    };
    RunCommand(Command::Start);
    EXPECT_GT(waits, 1);
    EXPECT_EQ(TheNullDesktop.Boxes.at(0).Title, "Illegal Move");
    ExpectPlayedToTheEnd();
}

TEST_F(TurnLoop, ShowsNoBoxForAnIllegalLineWhenTheProgramEnds) {
    Prepare(3, 1, Humanoid, ComputerAverage, {1, 4, 7, 2, 5});
    TheNullDesktop.WhenIdle = [] {
        PressLine(9);
        Form_Unload();
    };
    EXPECT_NO_THROW(RunCommand(Command::Start));
    EXPECT_TRUE(TheNullDesktop.Boxes.empty());
}

TEST_F(TurnLoop, TellsTheEndOfAGameAndBlinksForThreeSeconds) {
    const struct {
        Integer Kind;
        int Player; // who takes the last box of two; player 1 has the other
        const char* Captions;
        Color Fill;
    } cases[] = {{ComputerAverage, 1, "The Winner Is:|Colossus", LightRed},
                 {Humanoid, 1, "The Winner Is:|Colossus", LightRed},
                 {ComputerAverage, 2, "It's A Draw.|", Black}};
    for (const auto& c : cases) {
        StartFresh();
        Game.PlayerColor.at(1) = LightRed;
        Game.ComputerWinSounds = {{"none"}, 0};
        Prepare(2, 1, c.Kind, c.Kind, {1, 3, 5, 6, 2, 4});
        Game.CurrentPlayer = ToInteger(c.Player);
        LetPersonsPlay(1);
        std::string blinks;
        double since = 0;
        TheNullDesktop.WhenYielding = [&] {
            if (!Game.GameOverShown)
                since = TheNullDesktop.SecondsWaited;
            else
                blinks += VisibleMarkers() == 3 ? "1" : VisibleMarkers() == 12 ? "2" : "?";
        };
        RunCommand(Command::Start);
        blinks.erase(std::unique(blinks.begin(), blinks.end()), blinks.end());
        EXPECT_EQ(blinks, "121212121212");
        EXPECT_NEAR(TheNullDesktop.SecondsWaited - since, c.Kind == Humanoid ? 3 : 3.25, 0.2);
        EXPECT_EQ(Captions(), c.Captions);
        EXPECT_EQ(frmQuibsMain.shpPlayer4Active, (Shape{c.Fill, true}));
        EXPECT_EQ(Game.ComputerWinSounds.Next, c.Kind != Humanoid && c.Player == 1 ? 1 : 0);
        ExpectPlayedToTheEnd();
    }
}

TEST_F(TurnLoop, EndsAFullBoardWithoutWaitingForAMove) {
    Prepare(1, 1, Humanoid, Humanoid, {1, 2, 3, 4});
    RunCommand(Command::Start);
    ExpectPlayedToTheEnd();
}

TEST_F(TurnLoop, StartsTwentyGamesDuringBlinksOnOneStack) {
    Game.GridColumns = Game.GridRows = 1;
    std::set<void*> frames;
    int games = 0;
    TheNullDesktop.WhenYielding = [&] {
        if (!Game.GameOverShown || Game.CommandAfterGameOver || games == 20)
            return;
        frames.insert(__builtin_frame_address(0));
        RunCommand(games++ % 2 == 0 ? Command::Start : Command::Auto);
    };
    RunCommand(Command::Start);
    EXPECT_EQ(games, 20);
    EXPECT_EQ(frames.size(), 1U);
    ExpectPlayedToTheEnd();
}

TEST_F(TurnLoop, TakesExchangeOnlyForAPreparedGameAndBeginsItWithThatPlayer) {
    Prepare(1, 1, ComputerAverage, Humanoid, {1, 2, 3});
    AfterSeconds(1.6, [] { RunCommand(Command::Draw); });
    RunCommand(Command::Start);
    EXPECT_EQ(EnabledCommands(), Prepared) << "drawn when the blink was cut short";
    EXPECT_LT(TheNullDesktop.SecondsWaited, 1.7);
    const int drawn = Game.CurrentPlayer;
    RunCommand(Command::Exchange);
    EXPECT_EQ(Game.CurrentPlayer, 3 - drawn);
    EXPECT_EQ(Captions(), Game.PlayerName.at(3 - drawn) + "'s Turn|GAME PAUSED");
    TheNullDesktop.Answers = {MessageAnswer::Yes};
    RunCommand(Command::Quit);
    ExpectNoGame();
    const GameState before = Game;
    mnuExchange_Click();
    EXPECT_TRUE(Game == before);
    EXPECT_EQ(Captions(), "|");
}

TEST_F(TurnLoop, SurvivesAFailureInPlayAndWhileTheEndIsShown) {
    for (const double seconds : {0.1, 1.6}) {
        Prepare(1, 1, ComputerAverage, Humanoid, {1, 2, 3});
        AfterSeconds(seconds, [] {
            if (Game.GameOverShown)
                RunCommand(Command::Start);
            throw std::out_of_range("a bad index");
        });
        TheNullDesktop.Answers = {MessageAnswer::Ok};
        RunGuarded([] { RunCommand(Command::Start); });
        ExpectNoGame();
        EXPECT_EQ(TheNullDesktop.Boxes.back().Text, "The game had to be ended: a bad index.");
        LetPersonsPlay(1);
        const double before = TheNullDesktop.SecondsWaited;
        RunCommand(Command::Start);
        ExpectPlayedToTheEnd();
        EXPECT_GT(TheNullDesktop.SecondsWaited - before, 3);
    }
}

} // namespace
