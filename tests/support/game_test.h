// What every headless test starts from: a fresh program in an empty directory, and boards.
#pragma once

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/person.h"

// Whether side counts, owners, scores and counters agree with the lines drawn.
bool BoardIsSound();

// Sets up a new game of so many boxes and kinds, player 1 to move, as if it were being played.
void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind);

// What the status panel tells of both players, of the boxes and of the lines.
std::string PanelTexts();

// Draws lines for nobody: sides count, complete boxes go to player 1.
void DrawForNobody(const std::vector<int>& lines);

// Draws random lines for nobody: any at all, or mostly an opening that leaves chains and loops.
void DrawRandomPosition(std::uint32_t seed);

class GameTest : public ::testing::Test {
protected:
    void SetUp() override { StartFresh(); }

    const TestDirectory Directory;
};
