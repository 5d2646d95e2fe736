// Searches for the giveaway that leaves a player the best margin in boxes to the end of the game.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

#include "ai/pieces.h"
#include "ai/value_memory.h"

// A set of pieces, each with the number of times it is there.
struct Position {
    struct Share {
        PieceNumber Piece;
        int Count;
    };

    // Adds a piece `count` times, or takes it away.
    void Add(PieceNumber number, std::uint64_t pieceCode, int count);

    std::vector<Share> Shares; // in the order of their numbers
    std::uint64_t Code = 0;
};

// A row to give away.
struct Choice {
    int Boxes = 0;
    RunPlace Place;
    int Count = 0;      // so many rows are alike
    int RankInSize = 0; // among the choices of as many boxes, from 0
};

class GiveawaySearch {
public:
    // For a player of kind `mover`, one of the stronger computers, who must give away.
    GiveawaySearch(int mover, int opponent);

    // The margin still to come for each of the `candidates`, positions in `runs`, when its row is
    // the choice. Every way to the end of the game is followed if the steps suffice, else the most
    // different ones. Yields in between; once the game is to end the margins mean little.
    std::vector<double> Judge(const std::vector<Run>& runs, const std::vector<int>& candidates);

private:
    // Thrown when the steps are used up or the game is to end.
    struct Interruption {};

    // Somebody's turn to give away.
    struct Turn {
        int Level = 0;  // its position stands in Levels
        int Player = 0; // 0 = the one the search is for, 1 = the opponent
    };

    int KindOf(const Turn& turn) const { return Kinds.at(turn.Player); }
    int OpponentKindOf(const Turn& turn) const { return Kinds.at(1 - turn.Player); }

    std::vector<double> JudgeWiderAndWider(const std::vector<RunPlace>& candidates);
    void JudgeEach(const std::vector<RunPlace>& candidates, int width,
                   std::vector<double>& margins);
    double ValueOf(const Turn& turn);
    std::vector<Choice> ChoicesOf(const Turn& turn);
    bool IsDominated(const Turn& turn, const Piece& piece);
    bool ArePlayedAlike(const Run& smaller, const Run& larger) const;

    double ValueOfGiveaway(const Turn& turn, RunPlace place);
    double ValueOfAnyLine(const Turn& turn, RunPlace place);
    double ValueOfOpening(const Turn& turn, RunPlace place, bool leavesPairWhole);
    double ValueAfter(const Turn& turn, RunPlace place, int nextPlayer);
    bool EndsTheGame(const Turn& turn, RunPlace place);
    std::uint64_t CodeAfter(const Turn& turn, RunPlace place);
    void SetUpAfter(const Turn& turn, RunPlace place);
    void CountSteps(long steps);

    std::array<int, 2> Kinds;
    int Width = 0;          // the most choices of a turn that are followed
    bool LeavesOut = false; // some turn had more of them
    PieceCatalogue Catalogue;
    std::deque<Position> Levels;
    ValueMemory Values;
    long StepsLeft = 0;
    long StepsToYield = 0;
};
