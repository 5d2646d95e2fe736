// What the real desktop needs from the window that shows the game.
#pragma once

#include <functional>

#include "platform/desktop.h"

class QWidget;

struct MainWindowActions {
    // Message boxes are centred on it where no window of the program is active.
    QWidget* Window = nullptr;
    // Brings the window up to date with the controls' data. Called before every yield and box.
    std::function<void()> ShowControls = [] {};
    std::function<PointerPlace()> PlaceOfPointer = [] { return PointerPlace{-1, -1}; };
    std::function<void(const std::string&)> Say = [](const std::string&) {};
    std::function<void(Form)> ShowForm = [](Form) {};
    std::function<void(WindowPlace)> Place = [](WindowPlace) {};
};

// What the main window does for the game, from now on.
void UseMainWindow(MainWindowActions actions);
