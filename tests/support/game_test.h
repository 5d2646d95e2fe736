// What every headless test starts from: a fresh game on the null desktop.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "core/game_state.h"
#include "platform/null/null_desktop.h"

// Whether the board keeps its invariants: side counts, owners, scores and counters agree.
::testing::AssertionResult BoardIsSound();

// Takes settings, desktop and controls back to a fresh start-up with a fixed seed and no files.
void StartFresh();

// Sets up a new game of so many boxes and kinds, player 1 to move, as if it were being played.
void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind);

// Draws lines for nobody: sides count, complete boxes go to player 1.
void DrawForNobody(const std::vector<int>& lines);

class GameTest : public ::testing::Test {
protected:
    void SetUp() override { StartFresh(); }
};
