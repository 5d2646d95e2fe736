// The one place where the board changes during play.
#pragma once

// Draws `ChosenLine` for `CurrentPlayer`: records the line, claims the boxes it completes, updates
// the display, and passes the turn unless a box was completed. Does nothing when the line is a
// person's and refused. Throws std::logic_error when the line is drawn already. Yields for half a
// second when the turn passes.
void ApplyMove();

// Whether `CurrentPlayer`, a person, may draw `ChosenLine`. Against the average and the intelligent
// computer a person may not give a box away while the box behind it could be taken. A refusal is
// told in a message box, and the line's preview is erased.
bool IsLegalMove();
