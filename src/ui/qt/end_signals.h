// Lets the desktop end the program in order.
#pragma once

#include <functional>

// Calls `endProgram` from the event queue when the session or the user sends SIGTERM, SIGINT or
// SIGHUP.
void EndOnSignals(std::function<void()> endProgram);
