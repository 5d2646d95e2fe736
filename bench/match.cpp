// Lets two kinds of computer players play many games, and prints how strong the first one is.
//   match FIRST SECOND COLUMNS ROWS GAMES [SEED]      kinds: 1 Average, 2 Intelligent, 3 Cheat
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "ai/move_selection.h"
#include "base/random.h"
#include "core/play/game_setup.h"
#include "core/rules/moves.h"
#include "core/state/game_state.h"
#include "platform/null/null_desktop.h"
#include "ui/commands.h"

namespace {

struct Tally {
    int Games = 0;
    double Points = 0; // 1 for a win, a half for a draw
    int Wins = 0;
    double MarginSum = 0;
    double MarginSquares = 0;

    void Count(int margin) {
        ++Games;
        Wins += margin > 0 ? 1 : 0;
        Points += margin > 0 ? 1 : margin == 0 ? 0.5 : 0;
        MarginSum += margin;
        MarginSquares += static_cast<double>(margin) * margin;
    }

    double MeanMargin() const { return MarginSum / Games; }

    // Half of the 95 % interval of the mean margin.
    double MarginError() const {
        const double variance = MarginSquares / Games - MeanMargin() * MeanMargin();
        return 1.96 * std::sqrt(variance / Games);
    }
};

// Times are the processor's, whatever else runs on the machine. The longest to choose a line, by
// kind, and the longest without letting the window answer.
std::vector<double> LongestOfKind(KindCount, 0.0);
double LongestStretch = 0;
std::clock_t LastYield = 0;

double MillisecondsSince(std::clock_t start) {
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void NoteYield() {
    LongestStretch = std::max(LongestStretch, MillisecondsSince(LastYield));
    LastYield = std::clock();
}

void PlayTurn() {
    const int kind = Game.PlayerKind.at(Game.CurrentPlayer);
    Game.ChosenLine = 0;
    const std::clock_t start = LastYield = std::clock();
    ChooseComputerMove();
    NoteYield();
    LongestOfKind.at(kind) = std::max(LongestOfKind.at(kind), MillisecondsSince(start));
    ApplyMove();
}

// The margin of player 1 in a whole game.
int PlayOneGame() {
    NewGame();
    Game.CurrentPlayer = RandomPick(2);
    Game.GameInPlay = true;
    while (Game.BoxesClaimed < Game.BoxCount)
        PlayTurn();
    TheNullDesktop.Drawings.clear();
    TheNullDesktop.Sounds.clear();
    return Game.PlayerScore.at(1) - Game.PlayerScore.at(2);
}

Tally PlayMatch(Integer first, Integer second, int columns, int rows, int games) {
    Tally tally;
    Game.GridColumns = ToInteger(columns);
    Game.GridRows = ToInteger(rows);
    for (int game = 0; game < games; ++game) {
        const int seat = 1 + game % 2;
        Game.PlayerKind.at(seat) = first;
        Game.PlayerKind.at(OtherPlayer(seat)) = second;
        const int margin = PlayOneGame();
        tally.Count(seat == 1 ? margin : -margin);
    }
    return tally;
}

// The kind of computer that is called so. Throws what the caller is to be told.
Integer KindCalled(const std::string& word) {
    for (const KindTraits& kind : PlayerKinds)
        if (kind.IsComputer && (word == kind.Word || word == std::to_string(kind.Kind)))
            return kind.Kind;
    throw std::invalid_argument("no kind of computer is called " + word);
}

int PositiveNumber(const std::string& digits) {
    std::size_t length = 0;
    const int number = std::stoi(digits, &length);
    if (number < 1 || length != digits.size())
        throw std::invalid_argument("no number from 1: " + digits);
    return number;
}

void RunMatch(const std::vector<std::string>& arguments) {
    if (arguments.size() < 5 || arguments.size() > 6)
        throw std::invalid_argument("usage: match FIRST SECOND COLUMNS ROWS GAMES [SEED]");
    const Integer first = KindCalled(arguments.at(0));
    const Integer second = KindCalled(arguments.at(1));
    const auto number = [&](std::size_t position) {
        return PositiveNumber(arguments.at(position));
    };
    // Room for the largest field.
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = 32700;
    TheNullDesktop.WhenYielding = NoteYield;
    Form_Load();
    SeedRandom(arguments.size() > 5 ? static_cast<std::uint64_t>(number(5)) : 1);
    const Tally tally = PlayMatch(first, second, number(2), number(3), number(4));
    std::printf("%s against %s, %d by %d, %d games: points %.1f %%, margin %+.2f (+-%.2f), "
                "wins %.1f %%, longest choice %.0f ms and %.0f ms, longest stretch %.0f ms\n",
                TraitsOf(first).Word, TraitsOf(second).Word, static_cast<int>(Game.GridColumns),
                static_cast<int>(Game.GridRows), tally.Games, 100 * tally.Points / tally.Games,
                tally.MeanMargin(), tally.MarginError(), 100.0 * tally.Wins / tally.Games,
                LongestOfKind.at(first), LongestOfKind.at(second), LongestStretch);
}

} // namespace

int main(int count, char** arguments) {
    try {
        RunMatch({arguments + 1, arguments + count});
    } catch (const std::exception& mistake) {
        std::fprintf(stderr, "match: %s\n", mistake.what());
        return 2;
    }
    return 0;
}
