// What happens in a game, for who listens to it instead of looking. Each procedure says one short
// text that replaces what is being said, and says and costs nothing where nobody listens.
#pragma once

#include <string>

// Whose turn it is and what is new since the last telling: the field, the line that the other
// player drew, the boxes taken, the score, a pause, the winner. Told when a person's turn begins
// and when a game is started, paused, prepared, over and given up.
void TellNews();

// The score of a game between two computers, if it has changed and a while has passed since the
// last telling: their lines come faster than one can listen.
void TellScoreNowAndThen();

// Whose turn it is, a pause or the winner, and the score. Without a game, how to start one.
std::string StandingInWords();
