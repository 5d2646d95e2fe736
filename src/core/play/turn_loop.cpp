#include "core/play/turn_loop.h"

#include <stdexcept>
#include <utility>

#include "ai/move_selection.h"
#include "base/random.h"
#include "core/play/game_over.h"
#include "core/play/game_setup.h"
#include "core/play/pointer_input.h"
#include "core/rules/moves.h"
#include "core/rules/pacing.h"
#include "core/state/game_state.h"
#include "core/state/layout.h"
#include "display/command_states.h"
#include "display/news.h"
#include "display/status_panel.h"
#include "platform/desktop.h"
#include "platform/picture.h"

namespace {

enum class LoopEnd { BoardFull, Paused, Quit, ProgramEnding };

bool IsPersonsTurn() {
    return !IsComputer(Game.CurrentPlayer);
}

bool PersonIsToMove() {
    return Game.ChosenLine == 0 && !Game.GamePaused && !Game.QuitRequested && IsPersonsTurn() &&
           !Game.ProgramEnding;
}

// Sleeps until a press on the field has chosen a line, or a command or dialog ends the wait.
void WaitForPerson() {
    Game.MouseDownSeen = false;
    while (PersonIsToMove())
        YieldToEvents(Forever);
    Game.MouseDownSeen = true;
    if (Game.GamePaused && Game.ChosenLine != 0)
        Game.GhostLine = std::exchange(Game.ChosenLine, Integer{0}); // a press that is not played
    RemoveGhostLine();
}

void AskPerson() {
    if (PersonIsToMove()) {
        EnterPhase(Phase::PersonToMove);
        TellNews();
    }
    frmQuibsMain.picPlayingField.MousePointer = PointerShape::Default;
    WaitForPerson();
    if (!Game.GamePaused && !Game.QuitRequested)
        EnterPhase(Phase::ComputerToMove);
}

void AskComputer() {
    frmQuibsMain.picPlayingField.MousePointer = PointerShape::Hourglass;
    TellScoreNowAndThen();
    ChooseComputerMove();
    // The players dialog may have given the turn to a person meanwhile, who chooses for himself.
    if (IsPersonsTurn())
        Game.ChosenLine = 0;
}

void NextTurn() {
    Game.ChosenLine = 0;
    if (IsPersonsTurn())
        AskPerson();
    else
        AskComputer();
}

// The one look at a board from a file: whatever could keep the loop from ending ends it here.
void RequireWholeBoard() {
    if (!Game.QuitRequested && !BoardIsWhole())
        throw std::logic_error("a board was to be played that cannot be played to its end");
}

void DrawFirstPlayer() {
    Game.CurrentPlayer = RandomPick(2);
}

// A person is told at the beginning of his wait.
void TellComputersTurn() {
    if (!IsPersonsTurn() && !Game.QuitRequested)
        TellNews();
}

// Draws who begins, and lets a computer wait so that its first line does not come at once.
void BeginFirstTurn() {
    DrawFirstPlayer();
    ShowTurn(Game.CurrentPlayer);
    TellComputersTurn();
    if (!IsPersonsTurn())
        Delay(2);
}

void ResumeTurn() {
    Game.GamePaused = false;
    if (!IsPlayer(Game.CurrentPlayer))
        DrawFirstPlayer();
    ShowTurn(Game.CurrentPlayer);
    TellComputersTurn();
}

LoopEnd PlayTurns() {
    if (Game.QuitRequested)
        return LoopEnd::Quit;
    while (Game.BoxesClaimed < Game.BoxCount) {
        if (!Game.ProgramEnding)
            NextTurn();
        if (Game.ProgramEnding)
            return LoopEnd::ProgramEnding;
        if (Game.QuitRequested)
            return LoopEnd::Quit;
        if (Game.BoxesClaimed >= Game.BoxCount)
            break; // the cheat drew the last box itself, and no pause holds up the end
        if (Game.GamePaused)
            return LoopEnd::Paused;
        if (Game.ChosenLine != 0)
            ApplyMove();
    }
    return LoopEnd::BoardFull;
}

void EndLoop(LoopEnd end) {
    Game.GameInPlay = false;
    if (end == LoopEnd::BoardFull) {
        Game.GamePaused = false;
        EnterPhase(Phase::Idle);
        ShowGameOver();
    } else if (end == LoopEnd::Paused) {
        ShowGamePaused();
        TellNews();
    } else if (end == LoopEnd::Quit) {
        AbandonGame();
    }
}

} // namespace

void PlayGame() {
    Game.GameInPlay = true;
    Game.MouseDownSeen = true;
    EnterPhase(Phase::ComputerToMove);
    RequireWholeBoard();
    if (Game.GamePaused)
        ResumeTurn();
    else
        BeginFirstTurn();
    EndLoop(PlayTurns());
}

void AbandonGame() {
    EnterPhase(Phase::Idle);
    Game.GameInPlay = false;
    Game.GamePaused = false;
    Game.QuitRequested = false;
    Game.GameOverShown = false;
    ShowCaptions({}, {}, 0);
    ForgetTurn();
    Game.PlayerScore = {};
    ShowPlayerStatus(1);
    ShowPlayerStatus(2);
    Game.BoxCount = 0;
    Game.LineCount = 0;
    ClearCounters();
    ClearPicture();
    TellNews();
}
