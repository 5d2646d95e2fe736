// Searches for the giveaway that leaves a player the best margin in boxes to the end of the game.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "ai/pieces.h"
#include "ai/value_memory.h"
#include "core/state/player_kinds.h"

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
    std::uint64_t Code = 0;    // the sum of theirs
    int Runs = 0;
};

// A row to give away.
struct Choice {
    RunPlace Place;
    int Count = 0; // so many rows are alike
    int Rank = 0;  // the cheapest first, no two alike
};

// Judges in rounds. Round n follows everything once n runs or fewer are left, and before that only
// the cheapest choices: one, in wide rounds two, and all that an average player may make, for which
// every second round is left out. What it has judged exactly serves the rounds behind it.
class GiveawaySearch {
public:
    // A step is a position set up, about half a microsecond. Runs to look through and to enter into
    // the catalogue count likewise, so that they bound time and memory on every field.
    static constexpr long UsualSteps = 1'200'000;

    // Margins count in parts of a box, and means are cut to whole ones: every processor comes to
    // the same.
    static constexpr int Box = 1 << 16;
    static constexpr int SameAs = Box / 1000; // margins this near to each other are equal
    static constexpr int Unjudged = -(1 << 30);

    // For a player of kind `mover`, one of the stronger computers, who must give away.
    GiveawaySearch(int mover, int opponent, long steps = UsualSteps);

    // The margin still to come for each of the `candidates`, positions in `runs`, when its row is
    // the choice, by the last round begun: exact if none is left and no other row is better, else
    // no less than it is. Which of the best rows is best, if a round that is not exact cannot tell,
    // the rounds before it do. It judges the best first; what the steps end before is `Unjudged`.
    // Yields; once the game is to end margins mean little.
    std::vector<int> Judge(const std::vector<Run>& runs, const std::vector<int>& candidates);

private:
    static constexpr int Manners = 4; // in which a lone run may be played
    using LoneRuns = std::array<int, Manners>;

    // Thrown when the steps are used up or the game is to end.
    struct Interruption {};

    // Somebody's turn to give away. A margin outside of `Low` and `High` is of no account: it may
    // come out as any on the same side.
    struct Turn {
        int Player = 0; // 0 = the one the search is for, 1 = the opponent
        bool IsFirst = true;
        bool FollowsAll = true;
        int Low = Unjudged;
        int High = -Unjudged;

        Turn WithoutBounds() const { return {Player, IsFirst, FollowsAll}; }
        int SideOf(int margin) const { return margin <= Low ? -1 : margin >= High ? 1 : 0; }
    };

    const KindTraits& KindOf(const Turn& turn) const { return Kinds.at(turn.Player); }
    const KindTraits& OpponentKindOf(const Turn& turn) const { return Kinds.at(1 - turn.Player); }

    int ValueOf(Turn turn);
    void FollowChoices(const Turn& turn);
    std::size_t MostFollowed(const Turn& turn) const;
    LoneRuns SmallestLoneRuns() const;
    bool IsDominated(RunPlace place, const LoneRuns& smallest) const;
    int MannerOf(const Run& run) const;
    int CostOf(const Turn& turn, RunPlace place) const;

    int ValueOfGiveaway(const Turn& turn, RunPlace place);
    int ValueOfAnyLine(const Turn& turn, RunPlace place);
    int ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole);
    int ValueAfter(const Turn& turn, RunPlace place, int gained, int nextPlayer);
    void CountSteps(long steps);

    std::array<KindTraits, 2> Kinds;
    int AllRuns = 0;
    int Round = 0;
    PieceCatalogue Catalogue;
    Position Left;
    std::vector<Choice> Followed; // of each turn up to the last
    ValueMemory Values;
    long StepsLeft;
};
