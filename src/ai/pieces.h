// The undrawn board once no safe line is left, as the computer players think about it: independent
// pieces, each made of runs of boxes, and what becomes of a piece when one of its runs is opened.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

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

using PieceNumber = int; // from 0, in the order in which the pieces were met

// One run of a piece as something to give away.
struct Giveaway {
    int Boxes = 0;   // what the opponent may take
    int Behind = -1; // the run that falls with this one, -1 = none

    // What is left when everything given away has been taken, once that has been asked for.
    bool IsRestKnown = false;
    std::vector<PieceNumber> Rest;
};

struct Piece {
    std::vector<Run> Runs;
    std::vector<Giveaway> Giveaways; // one for each run
    int Smallest = 0;                // boxes of the smallest giveaway
    std::uint64_t Code = 0;          // random, so that a sum of codes stands for a set of pieces

    int RunCount() const { return static_cast<int>(Runs.size()); }
};

// Where a run stands: the piece, and the position among its runs.
struct RunPlace {
    PieceNumber Piece = 0;
    int Position = 0;
};

// Every piece met so far, each shape once.
class PieceCatalogue {
public:
    // Enters the pieces that `runs` fall into. `places`, if given, tells where each run stands.
    std::vector<PieceNumber> Enter(const std::vector<Run>& runs,
                                   std::vector<RunPlace>* places = nullptr);

    const Piece& At(PieceNumber number) const { return Pieces.at(number); }

    // The pieces that are left when the run has been opened and everything has been taken.
    const std::vector<PieceNumber>& RestAfter(RunPlace opened);

    // Work done since the last call, in runs looked at.
    long TakeSteps() { return std::exchange(StepsDone, 0); }

private:
    PieceNumber Intern(const std::vector<Run>& runs);

    std::deque<Piece> Pieces;
    std::unordered_map<std::u16string, PieceNumber> Numbers;
    long StepsDone = 0;
};
