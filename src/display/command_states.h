// Which commands are enabled when.
#pragma once

#include "platform/controls.h"

enum class Phase {
    Idle,           // start-up, game over, after a game was quit
    PersonToMove,   // a person is being waited for
    ComputerToMove, // a computer is choosing, and every pause between two turns
    Paused,         // a pause was asked for, whether or not the turn loop has ended for it
    QuitPending,    // quitting was confirmed, the turn loop has not ended yet
    Prepared,       // a game was drawn or loaded and waits to be started
};

// Enables and disables the commands that depend on the phase. The others are always enabled.
void EnterPhase(Phase phase);

bool IsEnabled(Command command);
