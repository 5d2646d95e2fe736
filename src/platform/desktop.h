// What the game asks of the desktop it runs on: the clock, the event queue and message boxes.
#pragma once

#include <string>

// Seconds since midnight, local time, 0 to 86400. Falls back to 0 at midnight.
float SecondsSinceMidnight();

inline constexpr float Forever = -1.0F;

// Sleeps until an event arrives or `atMostSeconds` have passed, handles everything that is pending
// and returns. 0 does not sleep; Forever sleeps until an event. Event handlers run inside this
// call, so any command of the window may have changed the game when it returns. Never called from a
// paint or resize event.
void YieldToEvents(float atMostSeconds);

enum class MessageIcon { None, Exclamation, Question };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

// Shows a box modal to the whole application and blocks until it is answered. `text` is plain text.
// Events that are queued already, and timers, run inside this call. A box that the end of the
// program closes answers Ok or No.
MessageAnswer ShowMessageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons);

// Whether such a box, or a dialog that the main window waits for, is open.
bool IsQuestionOpen();

// Where the pointer is, in twips from the corner of the field's picture. It may lie anywhere on the
// screen, and get from place to place unheard, over a menu or a dialog.
struct PointerPlace {
    float X, Y;
};
PointerPlace PlaceOfPointer();

// Whether somebody listens instead of looking. Asked before each text is composed, since a screen
// reader may come and go at any time; costs nanoseconds.
bool IsListenedTo();

// Says a text in place of the one that is being said. Where the keyboard is in another window, it
// is said on return to the field, if nothing newer is.
void Say(const std::string& text);

// The windows that commands open beside the main window.
enum class Form { FileOpen, FileSave, DefineGrid, DefinePlayers, Help };

// Loads and shows a form, or raises it if it is open already. Returns at once.
void ShowForm(Form form);

// Twips (1440 to the inch) to one logical pixel of the screen, across and down.
double ScreenTwipsPerPixelX();
double ScreenTwipsPerPixelY();

// Of the screen that the main window opens on, in twips.
double ScreenWidth();

// Puts the main window, which is not shown yet, on its screen.
enum class WindowPlace { Centred, Maximised };
void PlaceMainWindow(WindowPlace place);
