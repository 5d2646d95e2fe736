// What every headless test starts from: a fresh program in an empty directory.
#pragma once

#include <gtest/gtest.h>

#include "support/board.h"
#include "support/files.h"
#include "support/person.h"

class GameTest : public ::testing::Test {
protected:
    void SetUp() override { StartFresh(); }

    const TestDirectory Directory;
};
