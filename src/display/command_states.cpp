#include "display/command_states.h"

#include <algorithm>
#include <vector>

namespace {

using enum Command;

// What is enabled in each phase of the commands that depend on it.
std::vector<Command> EnabledIn(Phase phase) {
    switch (phase) {
    case Phase::Idle:
        return {Open, Start, Auto, Draw};
    case Phase::PersonToMove:
        return {Pause, Quit, Hint};
    case Phase::ComputerToMove:
    case Phase::QuitPending:
        return {Pause, Quit};
    case Phase::Paused:
        return {Save, Start, Quit};
    case Phase::Prepared:
        return {Save, Start, Quit, Exchange};
    }
    return {};
}

} // namespace

void EnterPhase(Phase phase) {
    const std::vector<Command> enabled = EnabledIn(phase);
    for (const Command command : {Open, Save, Start, Pause, Quit, Auto, Draw, Exchange, Hint})
        StateOf(command).Enabled = std::ranges::find(enabled, command) != enabled.end();
}

bool IsEnabled(Command command) {
    return StateOf(command).Enabled;
}
