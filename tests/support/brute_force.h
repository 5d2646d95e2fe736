// A second opinion on what to give away: plays out everything on small boards, line by line, and
// shares no code with the computer players.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

using LineSet = std::uint32_t; // line n of the game is bit n - 1

// A row to choose from: its lines, and the margin in boxes still to come when it is given.
struct OracleRow {
    LineSet Lines;
    double Margin;
};

// In here lines and boxes count from 0, in the order of the game.
class BruteForce {
public:
    BruteForce(int columns, int rows) {
        const int horizontal = columns * (rows + 1);
        BoxesOfLine.assign(horizontal + (columns + 1) * rows, {-1, -1});
        for (int box = 0; box < columns * rows; ++box) {
            const int left = horizontal + box % columns * rows + box / columns;
            SidesOfBox.push_back(Bit(box) | Bit(box + columns) | Bit(left) | Bit(left + rows));
            BoxesOfLine.at(box)[1] = BoxesOfLine.at(box + columns)[0] = box;
            BoxesOfLine.at(left)[1] = BoxesOfLine.at(left + rows)[0] = box;
        }
    }

    int LineCount() const { return static_cast<int>(BoxesOfLine.size()); }

    bool IsSafe(LineSet drawn, int line) const {
        const auto [first, second] = BoxesOfLine.at(line);
        return (first < 0 || Sides(drawn, first) < 2) && (second < 0 || Sides(drawn, second) < 2);
    }

    bool IsOpeningOver(LineSet drawn) const {
        const std::vector<int> open = OpenLines(drawn);
        return !open.empty() && TakeAll(drawn) == drawn &&
               std::none_of(open.begin(), open.end(),
                            [&](int line) { return IsSafe(drawn, line); });
    }

    // Kind 1 has only the smallest rows.
    std::vector<OracleRow> Rows(LineSet drawn, int kind, int otherKind) {
        std::map<LineSet, int> sizes; // a row is known by its lines
        int smallest = 1000;
        for (const int line : OpenLines(drawn)) {
            const LineSet taken = TakeAll(drawn | Bit(line));
            const int size = sizes[taken & ~drawn] = BoxesTaken(drawn, taken);
            smallest = std::min(smallest, size);
        }
        std::vector<OracleRow> rows;
        for (const auto& [row, size] : sizes) {
            if (kind == 1 && size != smallest)
                continue;
            double sum = 0;
            int count = 0;
            for (const int line : OpenLines(~row)) {
                if (kind > 1 && size == 2 && !IsBetweenGivenBoxes(drawn, line))
                    continue;
                sum += ValueAfter(drawn, line, {kind, otherKind});
                ++count;
            }
            rows.push_back({row, sum / count});
        }
        return rows;
    }

private:
    using Kinds = std::pair<int, int>; // of the player to move, of the other

    static LineSet Bit(int line) { return LineSet{1} << line; }

    int Sides(LineSet drawn, int box) const { return std::popcount(drawn & SidesOfBox.at(box)); }

    std::vector<int> OpenLines(LineSet drawn) const {
        std::vector<int> lines;
        for (int line = 0; line < LineCount(); ++line)
            if ((drawn & Bit(line)) == 0)
                lines.push_back(line);
        return lines;
    }

    bool IsBetweenGivenBoxes(LineSet drawn, int line) const {
        const auto [first, second] = BoxesOfLine.at(line);
        return first >= 0 && second >= 0 && Sides(drawn, first) == 2 && Sides(drawn, second) == 2;
    }

    int BoxesTaken(LineSet before, LineSet after) const {
        return static_cast<int>(
            std::count_if(SidesOfBox.begin(), SidesOfBox.end(), [&](LineSet sides) {
                return (sides & ~before) != 0 && (sides & ~after) == 0;
            }));
    }

    // The board when all that can be taken is.
    LineSet TakeAll(LineSet drawn) const {
        for (std::size_t box = 0; box < SidesOfBox.size(); ++box)
            if (Sides(drawn, static_cast<int>(box)) == 3)
                return TakeAll(drawn | SidesOfBox.at(box));
        return drawn;
    }

    // The lines that take box after box, starting with `box` beside `line`.
    std::vector<int> Walk(LineSet& drawn, int box, int line) const {
        std::vector<int> lines;
        while (box >= 0 && Sides(drawn, box) == 3) {
            line = std::countr_zero(SidesOfBox.at(box) & ~drawn);
            lines.push_back(line);
            drawn |= Bit(line);
            const auto [first, second] = BoxesOfLine.at(line);
            box = first == box ? second : first;
        }
        return lines;
    }

    // What the cheat draws when `last` opened the only boxes that can be taken.
    std::vector<int> CheatLines(LineSet drawn, int last) const {
        LineSet walked = drawn;
        const auto [first, second] = BoxesOfLine.at(last);
        std::vector<int> lines = Walk(walked, first, last);
        const bool isLoop = second >= 0 && !lines.empty() && Sides(walked, second) == 4 &&
                            (SidesOfBox.at(second) & Bit(lines.back())) != 0;
        const std::vector<int> tail = Walk(walked, second, last);
        const bool declines = lines.size() > 1 || tail.size() > 1;
        // What takes boxes only behind the other walk cannot come before it.
        LineSet alone = drawn;
        if (lines.size() > tail.size() && Walk(alone, second, last) == tail)
            lines.insert(lines.begin(), tail.begin(), tail.end());
        else
            lines.insert(lines.end(), tail.begin(), tail.end());
        const std::size_t count = lines.size();
        const bool endsGame = std::popcount(drawn) + static_cast<int>(count) == LineCount();
        if (!declines || (endsGame && count != 2))
            return lines;
        if (isLoop)
            lines.erase(lines.end() - 3, lines.end() - 2), lines.pop_back();
        else
            lines.erase(lines.end() - 2);
        return lines;
    }

    // The margin still to come for the player to move.
    double Value(LineSet drawn, int last, Kinds kinds) {
        const LineSet all = TakeAll(drawn);
        if (all == drawn)
            return ValueOfGiving(drawn, kinds);
        if (kinds.first == 3) {
            double margin = 0;
            for (const int line : CheatLines(drawn, last)) {
                const int gained = BoxesTaken(drawn, drawn | Bit(line));
                if (gained == 0)
                    return margin + ValueAfter(drawn, line, kinds);
                margin += gained;
                drawn |= Bit(line);
            }
            return margin + Value(drawn, last, kinds);
        }
        const double whole = BoxesTaken(drawn, all) + ValueOfGiving(all, kinds);
        return kinds == Kinds{0, 3} ? std::max(whole, PersonsBestTaking(drawn, kinds)) : whole;
    }

    double ValueAfter(LineSet drawn, int line, Kinds kinds) {
        return -Value(drawn | Bit(line), line, {kinds.second, kinds.first});
    }

    // Takes what can be taken, in any order, and at some point draws another line among those that
    // were given, so that nothing but pairs of boxes is left to take.
    double PersonsBestTaking(LineSet drawn, Kinds kinds) {
        double best = TakeAll(drawn) == drawn ? ValueOfGiving(drawn, kinds) : -1000;
        for (const int line : OpenLines(~TakeAll(drawn) | drawn)) {
            const LineSet next = drawn | Bit(line);
            const LineSet left = TakeAll(next);
            if (const int gained = BoxesTaken(drawn, next); gained > 0)
                best = std::max(best, gained + PersonsBestTaking(next, kinds));
            else if (BoxesTaken(next, left) == 2 * std::popcount(left & ~next))
                best = std::max(best, ValueAfter(drawn, line, kinds));
        }
        return best;
    }

    double ValueOfGiving(LineSet drawn, Kinds kinds) {
        if (std::popcount(drawn) == LineCount())
            return 0;
        const auto found = Known.find({drawn, kinds});
        if (found != Known.end())
            return found->second;
        double value = -1000;
        if (kinds.first == 0) {
            for (const int line : OpenLines(drawn))
                value = std::max(value, ValueAfter(drawn, line, kinds));
        } else {
            const std::vector<OracleRow> rows = Rows(drawn, kinds.first, kinds.second);
            double sum = 0;
            for (const OracleRow& row : rows) {
                sum += row.Margin;
                value = std::max(value, row.Margin);
            }
            if (kinds.first == 1)
                value = sum / static_cast<double>(rows.size());
        }
        Known[{drawn, kinds}] = value;
        return value;
    }

    std::vector<LineSet> SidesOfBox;
    std::vector<std::array<int, 2>> BoxesOfLine; // above or left, below or right; -1 = none
    std::map<std::pair<LineSet, Kinds>, double> Known;
};
