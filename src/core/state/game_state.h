// The whole game as plain data. There is one game, `Game`; every part of the program reads and
// writes it directly. `Game = GameState{}` is a reset, a copy is a snapshot.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/integer.h"
#include "core/state/player_kinds.h"
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
    Integer Box = 0; // read since the last other news
    PerPlayer<Integer> Score;
    float Time = 0; // seconds since midnight

    bool operator==(const ToldNews&) const = default;
};

// What the players dialog sets ...
struct PlayerSettings {
    PerPlayer<std::string> PlayerName;
    PerPlayer<Integer> PlayerKind;
    PerPlayer<Color> PlayerColor;

    bool operator==(const PlayerSettings&) const = default;
};

// ... and the grid dialog. The size, in boxes across and down, is that of the next game.
struct GridSettings {
    Integer GridColumns = 0;
    Integer GridRows = 0;
    Color BackgroundColor = Black;
    Color PointColor = Black;         // points and drawn lines
    Color GhostColor = Black;         // hover preview and hint
    Color ComputerGhostColor = Black; // the computer's last line while a person considers a reply

    bool operator==(const GridSettings&) const = default;
};

// They survive from game to game, and from run to run.
struct Settings : PlayerSettings, GridSettings {
    bool SoundOn = false;
    bool SettingsChanged = false; // since the program started

    bool operator==(const Settings&) const = default;
};

// The screen and what was found beside the program at start-up.
struct Surroundings {
    Integer TwipsPerPixelX = 1;
    Integer TwipsPerPixelY = 1;
    SoundList ComputerWinSounds, HumanWinSounds, DrawSounds;

    bool operator==(const Surroundings&) const = default;
};

// This game: the field, who scored what in it and who is to move.
struct Board {
    // Where the field lies on the picture, in twips. The spacing is never 0.
    Integer PointSpacingX = 1;
    Integer PointSpacingY = 1;
    Integer FieldLeft = 0;
    Integer FieldRight = 0;
    Integer FieldTop = 0;
    Integer FieldBottom = 0;

    // Lines and boxes are numbered from 1, as core/state/grid.h tells; row 0 of their tables is a
    // dummy that stands for none.
    Integer HorizontalLineCount = 0;
    Integer VerticalLineCount = 0;
    Integer LineCount = 0;
    Integer BoxCount = 0;
    std::vector<Line> Lines = std::vector<Line>(1);
    std::vector<Box> Boxes = std::vector<Box>(1);

    PerPlayer<Integer> PlayerScore;
    Integer LinesDrawn = 0;
    Integer BoxesClaimed = 0;
    Integer CurrentPlayer = 0; // 1 or 2 whenever the turn loop runs; 0 = not drawn yet
    Integer LastLine = 0;      // most recently drawn by either player, 0 = none

    bool operator==(const Board&) const = default;
};

// This turn: the lines that are shown, told and chosen in it ...
struct LinesOfTurn {
    Integer ComputerGhostLine = 0; // shown in ComputerGhostColor, 0 = none
    Integer GhostLine = 0;         // shown as preview or hint, 0 = none
    Integer LastGhostLine = 0;     // shown last, where the keys go on; 0 = none yet
    ToldNews Told;

    Integer ChosenLine = 0; // 0 = no move yet

    bool operator==(const LinesOfTurn&) const = default;
};

// ... and who is asked for them.
struct Turn : LinesOfTurn {
    bool MouseDownSeen = true; // false only while a person's press would be taken as the move
    bool HintMode = false;     // the computer's chooser is working for a person's hint
    float PointerX = -1;       // where the pointer was when a line was shown last, in twips
    float PointerY = -1;

    bool operator==(const Turn&) const = default;
};

// Flags through which commands talk to the running turn loop and to the window.
struct Requests {
    bool GameInPlay = false;    // the turn loop is running
    bool GamePaused = false;    // a pause was asked for, or a suspended game waits to be resumed
    bool QuitRequested = false; // the current game is to be abandoned
    bool GameOverShown = false; // the turn loop is showing the end of a game
    std::optional<Command> CommandAfterGameOver; // waits for that to stop
    std::string GameToOpen;                      // the file that Command::Open opens
    bool ResizeWarningShown = false;
    bool ShowHistory = false;   // the help viewer shows the history, not the help
    bool KeysTold = false;      // to who listens, since the program started
    bool ProgramEnding = false; // every wait and loop unwinds

    bool operator==(const Requests&) const = default;
};

// In the order of their lives, the longest first.
struct GameState : Settings, Surroundings, Board, Turn, Requests {
    bool operator==(const GameState&) const = default;
};

extern GameState Game;

inline bool IsPlayer(int player) {
    return player == 1 || player == 2;
}

inline int OtherPlayer(int player) {
    return 3 - player;
}

inline KindTraits KindOf(int player) {
    return TraitsOf(Game.PlayerKind.at(player));
}

inline bool IsComputer(int player) {
    return KindOf(player).IsComputer;
}

// Forgets every line that was previewed, chosen, drawn last or told: nothing may point into tables
// that are about to be replaced.
void ForgetLines();
