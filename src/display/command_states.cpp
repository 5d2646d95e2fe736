#include "display/command_states.h"

#include <array>

namespace {

enum Change { Off, On, Same };

constexpr std::array PhaseCommands{Command::Open,  Command::Save,     Command::Start,
                                   Command::Pause, Command::Quit,     Command::Auto,
                                   Command::Draw,  Command::Exchange, Command::Hint};

using PhaseRow = std::array<Change, PhaseCommands.size()>;

// clang-format off
constexpr PhaseRow RowOf(Phase phase) {
    switch (phase) {
    //                             Open Save Start Pause Quit Auto Draw XChg Hint
    case Phase::Idle:           return {On,  Off, On,  Off, Off, On,  On,  Off, Off};
    case Phase::PersonToMove:   return {Off, Off, Off, On,  On,  Off, Off, Off, On};
    case Phase::ComputerToMove: return {Off, Off, Off, On,  On,  Off, Off, Off, Off};
    case Phase::PausePending:   return {Off, On,  On,  Off, On,  Off, Off, Off, Same};
    case Phase::Paused:         return {Off, On,  On,  Off, On,  Off, Off, Off, Off};
    case Phase::QuitPending:    return {Off, Off, Off, On,  On,  Off, Off, Off, Same};
    case Phase::Prepared:       return {Off, On,  On,  Off, On,  Off, Off, On,  Off};
    }
    return {};
}
// clang-format on

} // namespace

void EnterPhase(Phase phase) {
    const PhaseRow row = RowOf(phase);
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (row.at(i) != Same)
            StateOf(PhaseCommands.at(i)).Enabled = row.at(i) == On;
    }
}

bool IsEnabled(Command command) {
    return StateOf(command).Enabled;
}
