// What a screen reader is told of the playing field.
#pragma once

#include <QString>

class PlayingField;

// From now on a playing field is to a screen reader what it is to the eye: one thing, with a name,
// a way to play and a line that is pointed at. Called before the first field is made.
void MakeFieldAccessible();

// Has a screen reader say `text` while the keyboard is on the field.
void SayAtField(PlayingField* field, const QString& text);
