// Searches for the giveaway that leaves a player the best margin in boxes to the end of the game.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "ai/pieces.h"
#include "ai/value_memory.h"

// A set of pieces, each with the number of times it is there.
struct Position {
    struct Share {
        Piece* Of;
        int Count;
    };

    // Adds a piece, or takes it away where `times` is -1.
    void Add(Piece& piece, int times);
    // Puts the rest of an opened piece in its place, or the piece back where `times` is -1.
    void Open(RunPlace place, int times);

    std::vector<Share> Shares; // in the order of the pieces' numbers
    SetCode Code;
    int Runs = 0;
};

// A row to give away.
struct Choice {
    RunPlace Place;
    int Count = 0; // so many rows are alike
};

// Judges in rounds. Round n follows everything once n runs or fewer are left, and before that only
// the cheapest choices. What it has judged exactly serves the rounds behind it.
class GiveawaySearch {
public:
    // A step is a position set up, worth about half a microsecond. Half of them has sufficed for
    // every round up to twenty-four runs, and all of them up to twenty-six.
    static constexpr long UsualSteps = 1'700'000;

    static constexpr double Unjudged = std::numeric_limits<double>::lowest();

    // For a player of kind `mover`, one of the stronger computers, who must give away.
    GiveawaySearch(int mover, int opponent, long steps = UsualSteps);

    // The margin still to come for each of the `candidates`, positions in `runs`, when its row is
    // the choice, by the last round begun: exact if none is left. It judges the best first; what
    // the steps end before is `Unjudged`. Yields; once the game is to end margins mean little.
    std::vector<double> Judge(const std::vector<Run>& runs, const std::vector<int>& candidates);

private:
    static constexpr int Manners = 4; // in which a lone run may be played

    // Thrown when the steps are used up or the game is to end.
    struct Interruption {};

    // Somebody's turn to give away.
    struct Turn {
        int Level = 0;  // turns before it
        int Player = 0; // 0 = the one the search is for, 1 = the opponent
        bool FollowsAll = true;
    };

    bool HasKind(int kind) const { return Kinds[0] == kind || Kinds[1] == kind; }
    int KindOf(const Turn& turn) const { return Kinds.at(turn.Player); }
    int OpponentKindOf(const Turn& turn) const { return Kinds.at(1 - turn.Player); }

    double ValueOf(const Turn& turn);
    std::vector<Choice> ChoicesOf(const Turn& turn);
    std::array<int, Manners> SmallestLoneRuns() const;
    int MannerOf(const Run& run) const;
    void KeepCheapest(const Turn& turn, std::vector<Choice>& choices);
    int CostOf(const Turn& turn, RunPlace place);

    double ValueOfGiveaway(const Turn& turn, RunPlace place);
    double ValueOfAnyLine(const Turn& turn, RunPlace place);
    double ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole);
    bool EndsTheGame(RunPlace place);
    double ValueAfter(const Turn& turn, RunPlace place, int nextPlayer);
    void CountSteps(long steps);

    std::array<int, 2> Kinds;
    int AllRuns = 0;
    int Round = 0;
    PieceCatalogue Catalogue;
    Position Left;
    ValueMemory Values;
    long StepsLeft;
};
