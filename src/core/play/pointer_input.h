// Turns the pointer and the keys on the playing field into lines: the ghost line, the press and the
// hint.
#pragma once

#include "core/play/line_steps.h"

// The pointer moves to (x, y), in twips. Nothing changes where it lies already: desktops repeat the
// last place, as when a window over the field closes, and that must not erase a hint.
void MovePointer(float x, float y);

// A press there. The pointer may have come unheard, over a dialog or a menu, and then it moves
// first: what is drawn is never far from it, unless it rests since a hint or a key.
void PressAt(float x, float y);

// Previews the undrawn line nearest to (x, y), in twips, while a person is waited for; erases the
// preview and the highlight of the computer's last line that were there before.
void ShowGhostLine(float x, float y);

// Previews the line that an arrow key leads to from the previewed one, and the nearest line that
// crosses it, while a person is waited for. Where there is no such line nothing changes; where none
// is previewed, one is near the last preview or else near the middle.
void MoveGhostLine(Direction direction);
void TurnGhostLine();

// Takes the preview off the field.
void RemoveGhostLine();

// Makes the previewed line the person's move.
void PressGhostLine();

// Previews the line that a computer would draw, for the person who is waited for. It stays until
// the pointer or a key moves it or a press plays it. May yield on a large field.
void ShowHint();
