// Lets two kinds of computer players play many games, and prints how strong the first one is.
//   match FIRST SECOND COLUMNS ROWS GAMES [SEED]      kinds: 1 Average, 2 Intelligent, 3 Cheat
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
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
std::vector<double> LongestOfKind(4, 0.0);
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

Tally PlayMatch(int first, int second, int columns, int rows, int games) {
    Tally tally;
    Game.GridColumns = ToInteger(columns);
    Game.GridRows = ToInteger(rows);
    for (int game = 0; game < games; ++game) {
        const int seat = 1 + game % 2;
        Game.PlayerKind.at(seat) = ToInteger(first);
        Game.PlayerKind.at(OtherPlayer(seat)) = ToInteger(second);
        const int margin = PlayOneGame();
        tally.Count(seat == 1 ? margin : -margin);
    }
    return tally;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 6) {
        std::fprintf(stderr, "usage: match FIRST SECOND COLUMNS ROWS GAMES [SEED]\n");
        return 2;
    }
    const auto number = [&](int position) { return std::atoi(arguments[position]); };
    // Room for the largest field.
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = 32700;
    TheNullDesktop.WhenYielding = NoteYield;
    Form_Load();
    SeedRandom(count > 6 ? number(6) : 1);
    const Tally tally = PlayMatch(number(1), number(2), number(3), number(4), number(5));
    std::printf("%d against %d, %d by %d, %d games: points %.1f %%, margin %+.2f (+-%.2f), "
                "wins %.1f %%, longest choice %.0f ms and %.0f ms, longest stretch %.0f ms\n",
                number(1), number(2), static_cast<int>(Game.GridColumns),
                static_cast<int>(Game.GridRows), tally.Games, 100 * tally.Points / tally.Games,
                tally.MeanMargin(), tally.MarginError(), 100.0 * tally.Wins / tally.Games,
                LongestOfKind.at(number(1)), LongestOfKind.at(number(2)), LongestStretch);
    return 0;
}
