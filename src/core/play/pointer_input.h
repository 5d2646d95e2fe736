// Turns the pointer on the playing field into lines: the ghost line, the press and the hint.
#pragma once

// Previews the undrawn line nearest to (x, y), in twips, while a person is waited for; erases the
// preview and the highlight of the computer's last line that were there before.
void ShowGhostLine(float x, float y);

// Makes the previewed line the person's move.
void PressGhostLine();

// Previews the line that a computer would draw, for the person who is waited for. It stays until
// the pointer moves or a press plays it. May yield on a large field.
void ShowHint();
