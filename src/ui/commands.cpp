#include "ui/commands.h"

#include <algorithm>
#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/random.h"
#include "core/play/game_setup.h"
#include "core/play/pointer_input.h"
#include "core/play/review.h"
#include "core/play/turn_loop.h"
#include "display/command_states.h"
#include "display/field.h"
#include "display/news.h"
#include "display/safe_lines.h"
#include "display/status_panel.h"
#include "platform/desktop.h"
#include "platform/picture.h"
#include "platform/wave_player.h"
#include "storage/configuration.h"
#include "storage/saved_game.h"

namespace {

constexpr double NarrowestCentredScreen = 1024; // pixels

bool Confirms(const char* question, const char* title) {
    return ShowMessageBox(question, title, MessageIcon::Question, MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

// A file in which it is nobody's turn leaves a board that only Start goes on with.
bool IsGameUnderWay() {
    return Game.GameInPlay || (Game.GamePaused && IsPlayer(Game.CurrentPlayer));
}

// A command comes late when it was posted before another that took it away, or that asks something.
bool MayRun(Command command) {
    return IsEnabled(command) && !IsQuestionOpen() && !Game.ProgramEnding;
}

// Sets up a game whose opening is filled in, to be started later.
void DrawGame() {
    NewGame();
    DrawSafeLines();
    Game.CurrentPlayer = RandomPick(2);
    ShowGamePaused();
    Game.GamePaused = true;
    EnterPhase(Phase::Prepared);
    TellNews();
}

void SetUpAndPlay(Command command) {
    if (command == Command::Open)
        return LoadGame(Game.GameToOpen);
    if (command == Command::Draw)
        return DrawGame();
    if (command == Command::Auto)
        Game.GamePaused = false;
    if (!Game.GamePaused)
        NewGame();
    if (command == Command::Auto)
        DrawSafeLines();
    PlayGame();
}

// Tells what fails. It ends the game if it is the game itself, or if it finds the board damaged.
void RunOrTell(const std::function<void()>& action, bool isTheGame) {
    const char* reason = "something unforeseen happened";
    bool endsGame = isTheGame;
    const auto blameBoard = [&] {
        endsGame = endsGame || IsGameUnderWay();
        if (endsGame)
            reason = "its board is damaged";
    };
    try {
        return action();
    } catch (const std::bad_alloc&) {
        reason = "there is not enough memory";
    } catch (const std::logic_error&) { // as by a line that is none
        blameBoard();
    } catch (const std::overflow_error&) { // by a number that no game holds
        blameBoard();
    } catch (...) { // nothing more is known
    }
    // A turn loop that is running below a handler must unwind by itself.
    if (endsGame && Game.GameInPlay && !isTheGame)
        Game.QuitRequested = true;
    else if (endsGame)
        AbandonGame();
    const std::string what = endsGame ? "The game had to be ended" : "That could not be done";
    ShowMessageBox(what + ", because " + reason + ".", "Quiblink", MessageIcon::Exclamation,
                   MessageButtons::Ok);
}

// Runs a command that needs the board or the turn loop to itself. While the end of a game is being
// shown the command is kept, the showing stops, and the call that shows it carries the command out
// when its loop has unwound; so the stack stays as deep as one.
void RunGameCommand(Command command) {
    if (Game.GameOverShown) {
        Game.CommandAfterGameOver = command;
        return;
    }
    std::optional<Command> next = command;
    while (next && !Game.ProgramEnding) {
        RunOrTell([next] { SetUpAndPlay(*next); }, true);
        next = std::exchange(Game.CommandAfterGameOver, std::nullopt);
    }
}

// A pause that the turn loop has not seen yet is forgotten.
void TakePauseBack() {
    Game.GamePaused = false;
    if (Game.QuitRequested)
        EnterPhase(Phase::QuitPending);
    else
        EnterPhase(Game.MouseDownSeen ? Phase::ComputerToMove : Phase::PersonToMove);
}

// The settings that cannot be written are lost; the program is ending anyway.
void SaveSettings() {
    try {
        WriteConfiguration();
    } catch (const std::exception&) {
        return;
    }
}

void CarryOut(Command command) {
    switch (command) {
    case Command::Open:
        return mnuOpen_Click();
    case Command::Save:
        return mnuSave_Click();
    case Command::Exit:
        return mnuExit_Click();
    case Command::Start:
        return mnuStart_Click();
    case Command::Auto:
        return mnuAuto_Click();
    case Command::Draw:
        return mnuDraw_Click();
    case Command::Exchange:
        return mnuExchange_Click();
    case Command::Hint:
        return mnuHint_Click();
    case Command::Pause:
        return mnuPause_Click();
    case Command::Quit:
        return mnuQuit_Click();
    case Command::Grid:
        return mnuGrid_Click();
    case Command::Players:
        return mnuPlayers_Click();
    case Command::Sound:
        return mnuSound_Click();
    case Command::QuibsHelp:
        return mnuQuibsHelp_Click();
    case Command::History:
        return mnuHistory_Click();
    case Command::About:
        return mnuAbout_Click();
    }
}

// Centred by hand for a box of 80 characters.
std::string CentredLine(const std::string& line) {
    const int indent = RoundToInteger(40 - static_cast<double>(line.size()) / 2);
    const std::string margin(static_cast<std::size_t>(indent), ' ');
    return margin + line + margin;
}

} // namespace

void RunGuarded(const std::function<void()>& handler) {
    RunOrTell(handler, false);
}

void RunCommand(Command command) {
    if (!MayRun(command))
        return;
    CarryOut(command);
}

void Form_Load() {
    Game.TwipsPerPixelX = RoundToInteger(ScreenTwipsPerPixelX());
    Game.TwipsPerPixelY = RoundToInteger(ScreenTwipsPerPixelY());
    SetPictureScale(Game.TwipsPerPixelX, Game.TwipsPerPixelY);
    const double screenPixels = ScreenWidth() / Game.TwipsPerPixelX;
    PlaceMainWindow(screenPixels >= NarrowestCentredScreen ? WindowPlace::Centred
                                                           : WindowPlace::Maximised);
    SetDefaults();
    ShowPlayerStatus(1);
    ShowPlayerStatus(2);
    SetWaveDeviceType("WaveAudio");
    EnterPhase(Phase::Idle);
}

bool Form_Resize() {
    return !RedrawField() && IsGameUnderWay() && !Game.ResizeWarningShown;
}

void ShowResizeWarning() {
    if (Game.ProgramEnding || !Form_Resize())
        return;
    Game.ResizeWarningShown = true;
    ShowMessageBox("You have resized the Quiblink window while a game\n"
                   "was in progress or paused. The results of the resize may not\n"
                   "be what you expected. You may need to reverse the resize.\n",
                   "Quiblink Resize Warning", MessageIcon::Exclamation, MessageButtons::Ok);
    Game.ResizeWarningShown = false;
}

void Form_Unload() {
    Game.ProgramEnding = true;
}

void mnuOpen_Click() {
    ShowForm(Form::FileOpen);
}

void mnuSave_Click() {
    ShowForm(Form::FileSave);
}

void mnuExit_Click() {
    if (IsGameUnderWay() && !Confirms("A game is in progress, exit anyway?", "Exit the Game"))
        return;
    SaveSettings();
    Form_Unload();
}

void mnuStart_Click() {
    if (!Game.GameInPlay)
        RunGameCommand(Command::Start);
    else if (Game.GamePaused)
        TakePauseBack();
}

void mnuAuto_Click() {
    if (!IsGameUnderWay())
        RunGameCommand(Command::Auto);
}

void mnuDraw_Click() {
    if (!IsGameUnderWay())
        RunGameCommand(Command::Draw);
}

void mnuExchange_Click() {
    Game.CurrentPlayer = ToInteger(OtherPlayer(Game.CurrentPlayer));
    ShowGamePaused();
    TellNews();
}

void mnuHint_Click() {
    ShowHint();
}

void mnuPause_Click() {
    Game.GamePaused = true;
    EnterPhase(Phase::Paused);
}

void mnuQuit_Click() {
    const bool isSure =
        Confirms("Are you sure you want to quit the current game?", "Quit the Game");
    Game.QuitRequested = isSure && IsGameUnderWay(); // which may have failed under the question
    if (!Game.QuitRequested)
        return;
    if (Game.GamePaused)
        mnuStart_Click();
    else
        EnterPhase(Phase::QuitPending);
}

void mnuGrid_Click() {
    ShowForm(Form::DefineGrid);
}

void mnuPlayers_Click() {
    ShowForm(Form::DefinePlayers);
}

void mnuSound_Click() {
    Game.SettingsChanged = true;
    Game.SoundOn = !Game.SoundOn;
    StateOf(Command::Sound).Checked = Game.SoundOn;
    if (IsListenedTo())
        Say(Game.SoundOn ? "Sound on" : "Sound off");
}

void mnuQuibsHelp_Click() {
    Game.ShowHistory = false;
    ShowForm(Form::Help);
}

void mnuHistory_Click() {
    Game.ShowHistory = true;
    ShowForm(Form::Help);
}

void mnuAbout_Click() {
    const std::string text = CentredLine("Quiblink Version 3.2") + "\n" +
                             CentredLine("A game of quibs, lines and boxes") + "\n" +
                             CentredLine("Made by the Quiblink developers") + std::string(40, ' ');
    ShowMessageBox(text, "About Quiblink", MessageIcon::None, MessageButtons::Ok);
}

void OpenGame(const std::string& path) {
    if (!MayRun(Command::Open) || Game.GameInPlay)
        return;
    Game.GameToOpen = path;
    RunGameCommand(Command::Open);
}

bool SaveGameAs(const std::string& directory, const std::string& name) {
    if (!MayRun(Command::Save))
        return true;
    if (name.empty()) {
        ShowMessageBox("File name must be specified.", "Quibs Game Save Error",
                       MessageIcon::Exclamation, MessageButtons::Ok);
        return false;
    }
    SaveGame(SavePath(directory, name));
    return true;
}

void SetPlayers(const PlayerSettings& chosen) {
    Game.SettingsChanged = true;
    static_cast<PlayerSettings&>(Game) = chosen;
    ShowPlayerStatus(1);
    ShowPlayerStatus(2);
}

void SetGrid(const GridSettings& chosen) {
    Game.SettingsChanged = true;
    static_cast<GridSettings&>(Game) = chosen;
    frmQuibsMain.picPlayingField.BackColor = Game.BackgroundColor;
}

void picPlayingField_MouseDown(float x, float y) {
    PressAt(x, y);
}

void picPlayingField_KeyDown(FieldKey key) {
    switch (key) {
    case FieldKey::Left:
        return MoveGhostLine(Direction::Left);
    case FieldKey::Up:
        return MoveGhostLine(Direction::Up);
    case FieldKey::Right:
        return MoveGhostLine(Direction::Right);
    case FieldKey::Down:
        return MoveGhostLine(Direction::Down);
    case FieldKey::Turn:
        return TurnGhostLine();
    case FieldKey::Draw:
        return PressGhostLine();
    case FieldKey::TellPlace:
        return TellPlace();
    case FieldKey::TellStanding:
        return TellStanding();
    case FieldKey::TellBoxLeft:
        return TellBox(Direction::Left);
    case FieldKey::TellBoxAbove:
        return TellBox(Direction::Up);
    case FieldKey::TellBoxRight:
        return TellBox(Direction::Right);
    case FieldKey::TellBoxBelow:
        return TellBox(Direction::Down);
    }
}

void picPlayingField_MouseMove(float x, float y) {
    MovePointer(x, y);
}
