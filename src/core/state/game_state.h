// The whole game as plain data. There is one game, `Game`; every part of the program reads and
// writes it directly. `Game = GameState{}` is a reset, a copy is a snapshot.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/integer.h"
#include "platform/color.h"
#include "platform/controls.h"

// A value for each of the players 1 and 2; any other player is an out-of-range error.
template <class T>
struct PerPlayer {
    std::array<T, 2> Values{};

    T& at(int player) { return Values.at(static_cast<std::size_t>(player) - 1); }
    const T& at(int player) const { return Values.at(static_cast<std::size_t>(player) - 1); }
    bool operator==(const PerPlayer&) const = default;
};

// The values of `PlayerKind`. Any value but Humanoid means a computer player.
inline constexpr Integer Humanoid = 0;
inline constexpr Integer ComputerAverage = 1;
inline constexpr Integer ComputerIntelligent = 2;
inline constexpr Integer ComputerCheat = 3;

struct Line {
    Integer Drawn = 0;     // 0 = not drawn, else the line's own number
    Integer X = 0;         // left or top end point, in twips
    Integer Y = 0;         //
    Integer FirstBox = 0;  // box above or to the left, 0 = none
    Integer SecondBox = 0; // box below or to the right, 0 = none

    bool operator==(const Line&) const = default;
};

enum Side { Top, Bottom, Left, Right };

struct Box {
    Integer SidesDrawn = 0;         // 0 to 4
    Integer Owner = 0;              // the player who drew the fourth side, 0 = unclaimed
    std::array<Integer, 4> Sides{}; // line numbers, indexed by Side and scanned in that order

    bool operator==(const Box&) const = default;
};

// Up to ten wave files, played in turn over successive games.
struct SoundList {
    std::vector<std::string> Names; // position 1 is Names.at(0)
    Integer Next = 0;               // the one behind this position plays next; 0 = no files

    bool operator==(const SoundList&) const = default;
};

// What somebody who listens has been told of this game.
struct ToldNews {
    bool Field = false; // its size and how far it had come
    Integer LastLine = 0;
    Integer GhostLine = 0;
    PerPlayer<Integer> Score;
    float Time = 0; // seconds since midnight

    bool operator==(const ToldNews&) const = default;
};

struct GameState {
    // Settings: they survive from game to game.
    PerPlayer<std::string> PlayerName;
    PerPlayer<Integer> PlayerKind;
    PerPlayer<Color> PlayerColor;
    Integer GridColumns = 0; // boxes across and down of the next game
    Integer GridRows = 0;
    Color BackgroundColor = Black;
    Color PointColor = Black;         // points and drawn lines
    Color GhostColor = Black;         // hover preview and hint
    Color ComputerGhostColor = Black; // the computer's last line while a person considers a reply
    bool SoundOn = false;
    bool SettingsChanged = false; // since the program started

    // The screen and what was found beside the program at start-up.
    Integer TwipsPerPixelX = 1;
    Integer TwipsPerPixelY = 1;
    SoundList ComputerWinSounds, HumanWinSounds, DrawSounds;

    // This game: the field on the picture, in twips ...
    Integer PointSpacingX = 0;
    Integer PointSpacingY = 0;
    Integer FieldLeft = 0;
    Integer FieldRight = 0;
    Integer FieldTop = 0;
    Integer FieldBottom = 0;

    // ... its lines and boxes, numbered from 1; row 0 is a dummy that stands for none. Horizontal
    // lines come first, row by row; then vertical lines, column by column. A box has the number of
    // its top line.
    Integer HorizontalLineCount = 0;
    Integer VerticalLineCount = 0;
    Integer LineCount = 0;
    Integer BoxCount = 0;
    std::vector<Line> Lines = std::vector<Line>(1);
    std::vector<Box> Boxes = std::vector<Box>(1);

    // ... and how far it has come.
    PerPlayer<Integer> PlayerScore;
    Integer LinesDrawn = 0;
    Integer BoxesClaimed = 0;
    Integer CurrentPlayer = 0;     // 1 or 2 whenever the turn loop runs; 0 = not drawn yet
    Integer LastLine = 0;          // most recently drawn by either player, 0 = none
    Integer ComputerGhostLine = 0; // shown in ComputerGhostColor, 0 = none
    Integer GhostLine = 0;         // shown as preview or hint, 0 = none
    Integer LastGhostLine = 0;     // shown last, where the keys go on; 0 = none yet

    ToldNews Told;

    // This turn.
    Integer ChosenLine = 0;    // 0 = no move yet
    bool MouseDownSeen = true; // false only while a person's press would be taken as the move
    bool HintMode = false;     // the computer's chooser is working for a person's hint
    float PointerX = -1;       // where the pointer was seen last on the field, in twips
    float PointerY = -1;

    // Flags through which commands talk to the running turn loop.
    bool GameInPlay = false;    // the turn loop is running
    bool GamePaused = false;    // a pause was asked for, or a suspended game waits to be resumed
    bool QuitRequested = false; // the current game is to be abandoned
    bool GameOverShown = false; // the turn loop is showing the end of a game
    std::optional<Command> CommandAfterGameOver; // waits for that to stop
    std::string GameToOpen;                      // the file that Command::Open opens
    bool ResizeWarningShown = false;
    bool ShowHistory = false;   // the help viewer shows the history, not the help
    bool ProgramEnding = false; // every wait and loop unwinds

    bool operator==(const GameState&) const = default;
};

extern GameState Game;

inline bool IsPlayer(int player) {
    return player == 1 || player == 2;
}

inline int OtherPlayer(int player) {
    return 3 - player;
}

inline bool IsVertical(int line) {
    return line > Game.HorizontalLineCount;
}

// Forgets every line that was previewed, chosen, drawn last or told: nothing may point into tables
// that are about to be replaced.
void ForgetLines();

// The box beyond a line of `box`, 0 = the border.
int BoxAcross(int line, int box);

// The first side of `box` but `leftOut` still to be drawn, from top to right; 0 = none.
int FirstUndrawnSide(int box, int leftOut = 0);
