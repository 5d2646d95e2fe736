// What the real desktop needs from the window that shows the game.
#pragma once

#include <functional>

// `show` brings the window up to date with the controls' data. It is called before every yield and
// message box.
void ShowControlsWith(std::function<void()> show);
