// Finds the runs of boxes on the board of the game.
#pragma once

#include <vector>

#include "ai/pieces.h"

struct BoardRuns {
    std::vector<Run> Runs;
    std::vector<int> RunOfLine; // by line number, unless it is drawn
};

// Reads the board as it stands, with no safe line left and no box with three sides.
BoardRuns FindBoardRuns();
