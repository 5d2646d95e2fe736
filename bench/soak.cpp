// Plays random games in which anything that a user may do happens at any moment, and looks at the
// board each time. Build it with the sanitizers.
//   soak GAMES [SEED]      game n of a run is the first one of a run with SEED + n
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "support/anything.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

std::mt19937 chance;
std::string fault;
long boxes = 0; // claimed in all games

void DoAnythingAtAll() {
    DoAnything(static_cast<std::uint32_t>(chance()));
}

void LookForFaults() {
    if (fault.empty())
        fault = FaultSeen();
}

void LiveThroughAYield() {
    LookForFaults();
    if (chance() % 2 == 0)
        DoAnythingAtAll();
    LookForFaults();
}

// Tells whether the game was played to its last box.
bool PlayOneGame(unsigned seed) {
    chance.seed(seed);
    StartFresh();
    Game.GridColumns = ToInteger(1 + static_cast<int>(chance() % 9));
    Game.GridRows = ToInteger(1 + static_cast<int>(chance() % 7));
    LetPersonsPlay(seed);
    TheNullDesktop.WhenYielding = TheNullDesktop.WhenAsked = LiveThroughAYield;
    do {
        DoAnythingAtAll();
        RunGuarded([] { RunCommand(Command::Start); });
        LookForFaults();
    } while (Game.GamePaused && !Game.ProgramEnding);
    boxes += Game.BoxesClaimed;
    return Game.BoxCount > 0 && Game.BoxesClaimed == Game.BoxCount;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "usage: soak GAMES [SEED]\n");
        return 2;
    }
    const TestDirectory directory;
    const int games = std::atoi(arguments[1]);
    const int firstSeed = count > 2 ? std::atoi(arguments[2]) : 1;
    int wholeGames = 0;
    for (int game = 0; game < games && fault.empty(); ++game) {
        wholeGames += PlayOneGame(static_cast<unsigned>(firstSeed + game)) ? 1 : 0;
        if (!fault.empty())
            std::printf("Seed %d: %s\n", firstSeed + game, fault.c_str());
        if ((game + 1) % 1000 == 0 || game + 1 == games)
            std::printf("%d games, %d of them to the last box, %ld boxes\n", game + 1, wholeGames,
                        boxes);
        std::fflush(stdout);
    }
    return fault.empty() ? 0 : 1;
}
