// A second opinion on what to give away: plays out everything on small boards, line by line, and
// shares no code with the computer players.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

using LineSet = std::uint32_t; // line n is bit n - 1

// A row to choose from: its lines as a set, and the margin in boxes still to come when it is given.
struct OracleRow {
    LineSet Lines;
    double Margin;
};

class BruteForce {
public:
    BruteForce(int columns, int rows);

    int LineCount() const { return static_cast<int>(BoxesOfLine.size()); }
    bool IsSafe(LineSet drawn, int line) const;
    // Whether every box has at most two sides and each line to come would add a third.
    bool IsOpeningOver(LineSet drawn) const;

    // The rows of a player of `kind` who must give away to one of `otherKind`.
    std::vector<OracleRow> Rows(LineSet drawn, int kind, int otherKind);

private:
    using Kinds = std::pair<int, int>; // of the player to move, of the other

    int Sides(LineSet drawn, int box) const;
    bool IsBeside(int line, int box) const;
    int OpenSide(LineSet drawn, int box) const;
    int BoxesTaken(LineSet drawn, int line) const;
    LineSet TakeAll(LineSet drawn, int& boxes) const;
    std::vector<int> Walk(LineSet& drawn, int box, int line) const;
    std::vector<int> CheatLines(LineSet drawn, int last) const;

    double Value(LineSet drawn, int last, Kinds kinds);
    double ValueAfter(LineSet drawn, int line, Kinds kinds);
    double ValueOfGiving(LineSet drawn, Kinds kinds);
    double PersonsBestTaking(LineSet drawn, int last, Kinds kinds);

    std::vector<std::array<int, 4>> SidesOfBox;  // top, bottom, left, right
    std::vector<std::array<int, 2>> BoxesOfLine; // above or left, below or right; -1 = none
    std::map<std::pair<LineSet, Kinds>, double> Known;
};
