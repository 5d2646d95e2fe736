// What a screen reader is told of the playing field and of lists that show one of their entries.
#pragma once

#include <QString>

class QWidget;

// From now on a playing field is to a screen reader what it is to the eye: one thing, with a name,
// a state and a line that is pointed at; and a closed list is called by its label and its entry,
// and tells each change. Called before the first of them is made.
void MakeWidgetsSpeak();

// Has a screen reader say `text` while the keyboard is on that field or list.
void SayAt(QWidget* widget, const QString& text);
