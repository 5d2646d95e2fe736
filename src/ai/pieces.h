// The undrawn board once no safe line is left, as the computer players think about it: independent
// pieces, each made of runs of boxes, and what becomes of a piece when one of its runs is opened.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/integer.h"

// Boxes with two sides drawn, one behind the other. Each end lies at a joint, which is a box with
// at most one side drawn, or at none.
struct Run {
    static constexpr int NoJoint = 0; // joints count from 1
    static constexpr int Closed = -1; // both ends of a ring

    int Boxes = 0;
    std::array<int, 2> Ends{};

    bool IsRing() const { return Ends[0] == Closed; }
    int LineCount() const { return IsRing() ? Boxes : Boxes + 1; }
    auto operator<=>(const Run&) const = default; // NOLINT(modernize-use-nullptr): its own mistake
};

struct Piece;

// One run of a piece as something to give away. Small, for a search goes through millions.
struct Giveaway {
    Integer Boxes = 0;            // what the opponent may take
    Integer Behind = -1;          // the run that falls with this one, -1 = none
    Integer Joined = 0;           // other runs that seem to go when it is opened
    Integer RunChange = 0;        // from the piece to what is left of it, 0 = not opened yet
    std::uint64_t CodeChange = 0; // likewise
    std::array<Piece*, 2> Rest{}; // likewise: a piece at each end of what was taken, or null
};

struct Piece {
    std::vector<Run> Runs;
    std::vector<Giveaway> Giveaways; // one for each run
    int Number = 0;                  // in the order in which the pieces were met
    std::uint64_t Code = 0;          // random

    int RunCount() const { return static_cast<int>(Runs.size()); }
};

// Where a run stands: the piece, and the position among its runs.
struct RunPlace {
    Piece* Of = nullptr;
    int Position = 0;

    const Run& Opened() const { return Of->Runs.at(Position); }
    const Giveaway& Given() const { return Of->Giveaways.at(Position); }
};

// Every piece met so far, each shape once.
class PieceCatalogue {
public:
    // Enters the pieces that `runs` fall into. Tells where each run stands.
    std::vector<RunPlace> Enter(const std::vector<Run>& runs);

    // The giveaway of a run, opened if it was not yet.
    const Giveaway& Open(RunPlace place);

    // Work done since the last call, in runs looked at.
    long TakeSteps() { return std::exchange(StepsDone, 0); }

private:
    Piece& Intern(const std::vector<Run>& runs);

    std::unordered_map<std::u16string, Piece> Pieces; // no address ever changes
    long StepsDone = 0;
};
