// What the commands and events of the main window do. Nothing here knows the window's toolkit: the
// window only forwards, so whole stories run without one.
#pragma once

#include <functional>
#include <string>

#include "core/state/game_state.h"
#include "platform/controls.h"

// Runs an event handler. An unforeseen failure in it is told in a message box. It ends the game if
// the board or the turn loop is broken; else all stays as it was.
void RunGuarded(const std::function<void()>& handler);

// Carries out a command if it is enabled and no question is open. Commands are queued, so that two
// may arrive together: one that the other has overtaken does nothing.
void RunCommand(Command command);

// Start-up, before the window is shown: screen factors, the window's place, settings, status lines,
// sound player.
void Form_Load();

// Redraws the field for the picture's new size. True when the user is to be warned, by
// `ShowResizeWarning` once the window rests, that the game no longer fits. By then it may fit
// again.
bool Form_Resize();
void ShowResizeWarning();

// The close box: every wait and loop ends, nothing is asked or saved.
void Form_Unload();

void mnuOpen_Click();
void mnuSave_Click();
void mnuExit_Click();
void mnuStart_Click();
void mnuAuto_Click();
void mnuDraw_Click();
void mnuExchange_Click();
void mnuHint_Click();
void mnuPause_Click();
void mnuQuit_Click();
void mnuGrid_Click();
void mnuPlayers_Click();
void mnuSound_Click();
void mnuQuibsHelp_Click();
void mnuHistory_Click();
void mnuAbout_Click();

// Ok of the open dialog, with the text of its path box as it stands. Does nothing when a game may
// no longer be opened.
void OpenGame(const std::string& path);

// Ok of the save dialog, with the directory of its list and the name typed. False when the dialog
// is to stay open because the name is missing.
bool SaveGameAs(const std::string& directory, const std::string& name);

// Ok of the players dialog: shows the players anew, also in a game that is under way.
void SetPlayers(const PlayerSettings& chosen);

// Ok of the grid dialog: the background changes at once, the rest with what is drawn next.
void SetGrid(const GridSettings& chosen);

// The keys that play and ask, whatever the desktop calls them.
enum class FieldKey {
    Left,
    Up,
    Right,
    Down,
    Turn,
    Draw,
    TellPlace,
    TellStanding,
    TellBoxLeft,
    TellBoxAbove,
    TellBoxRight,
    TellBoxBelow
};
inline constexpr std::size_t FieldKeyCount = static_cast<std::size_t>(FieldKey::TellBoxBelow) + 1;

// A press of any button at (x, y) in twips on the field, a move to there, and the press of a key.
void picPlayingField_MouseDown(float x, float y);
void picPlayingField_KeyDown(FieldKey key);
void picPlayingField_MouseMove(float x, float y);
