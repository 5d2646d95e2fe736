// The status panel below the field: scores, counters, whose turn it is and the four markers.
#pragma once

#include <string>

#include "platform/color.h"
#include "platform/controls.h"

// Name, score, kind and colour of `player`. Throws std::out_of_range unless that is 1 or 2.
void ShowPlayerStatus(int player);

void ShowBoxesStatus();
void ShowLinesStatus();
void ClearCounters();

// "Colossus's Turn". Throws std::out_of_range unless `player` is 1 or 2.
std::string TurnText(int player);

// Caption, marker and status line of the player to move; any other number than 1 and 2 changes
// nothing.
void ShowTurn(int player);

// Whose turn it will be beside "GAME PAUSED", without markers. Throws std::out_of_range when
// `CurrentPlayer` is neither 1 nor 2.
void ShowGamePaused();

// What the captions say at the end of a game: "The Winner Is: Colossus" or "It's A Draw.".
std::string OutcomeText();

// Both captions, and the player whose status line stands out, 0 = none.
void ShowCaptions(const Label& first, const Label& second, int markedPlayer);

// The markers come in two pairs, which take turns when the end of a game blinks.
enum class MarkerPair { First, Second };
void ShowMarkers(MarkerPair pair, bool visible);
void ShowAllMarkers(bool visible);
void FillAllMarkers(Color color);
