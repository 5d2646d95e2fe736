// The main window's controls as plain data. The game writes them; the window shows them whenever
// the game yields or an event handler ends.
#pragma once

#include <array>
#include <string>

#include "platform/color.h"

enum class Command {
    Open,
    Save,
    Exit,
    Start,
    Auto,
    Draw,
    Exchange,
    Hint,
    Pause,
    Quit,
    Grid,
    Players,
    Sound,
    QuibsHelp,
    History,
    About,
};
inline constexpr std::size_t CommandCount = static_cast<std::size_t>(Command::About) + 1;

enum class PointerShape { Default = 0, Hourglass = 11 };

// The first so many bytes of a text are a player's name: the one part of it that the window may
// shorten.
struct Label {
    std::string Caption;
    std::size_t NameLength = 0;
    bool operator==(const Label&) const = default;
};

struct TextBox {
    std::string Text;
    std::size_t NameLength = 0;
    bool operator==(const TextBox&) const = default;
};

struct Shape {
    Color FillColor = Black;
    bool Visible = false;
    bool operator==(const Shape&) const = default;
};

struct Picture {
    Color BackColor = Black;
    PointerShape MousePointer = PointerShape::Default;
    bool operator==(const Picture&) const = default;
};

struct Frame {
    int MarkedPlayer = 0; // whose status line stands out: who is to move or has won; 0 = neither
    bool operator==(const Frame&) const = default;
};

// A menu entry and its toolbar button: they are one command and always agree.
struct CommandState {
    bool Enabled = true;
    bool Checked = false;
    bool operator==(const CommandState&) const = default;
};

struct MainWindowControls {
    Frame fraStatistics;
    TextBox txtPlayer1Status, txtPlayer2Status;
    Shape shpPlayer1Status{Black, true}, shpPlayer2Status{Black, true};
    TextBox txtBoxesStatus, txtLinesStatus;
    Label lblPlayer1Active, lblPlayer2Active;
    Shape shpPlayer1Active, shpPlayer2Active, shpPlayer3Active, shpPlayer4Active;
    Picture picPlayingField;
    std::array<CommandState, CommandCount> Commands;

    bool operator==(const MainWindowControls&) const = default;
};

extern MainWindowControls frmQuibsMain;

inline CommandState& StateOf(Command command) {
    return frmQuibsMain.Commands.at(static_cast<std::size_t>(command));
}
