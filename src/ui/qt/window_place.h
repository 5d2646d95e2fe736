// Where a window stands on its screen, together with its title bar and borders. Until the window
// is shown nobody knows how wide they are.
#pragma once

class QWidget;

// In the middle of the whole screen.
void CentreOnScreen(QWidget& window);

// Wholly on the usable part of the screen it is on: moved there, and made smaller where it is
// larger.
void KeepOnScreen(QWidget& window);
