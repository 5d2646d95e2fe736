// Plays random games in which anything that a user may do happens at any moment, and looks at the
// board each time. Build it with the sanitizers.
//   soak GAMES [SEED]      game n of a run is the first one of a run with SEED + n
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/state/game_state.h"
#include "support/anything.h"
#include "support/files.h"

int main(int count, char** arguments) {
    if (count < 2) {
        std::fprintf(stderr, "usage: soak GAMES [SEED]\n");
        return 2;
    }
    const TestDirectory directory;
    const int games = std::atoi(arguments[1]);
    const int firstSeed = count > 2 ? std::atoi(arguments[2]) : 1;
    std::string fault;
    int wholeGames = 0;
    long boxes = 0; // claimed in all games
    for (int game = 0; game < games && fault.empty(); ++game) {
        PlayAnyGame(static_cast<unsigned>(firstSeed + game), [&fault] {
            if (fault.empty())
                fault = FaultSeen();
        });
        boxes += Game.BoxesClaimed;
        wholeGames += Game.BoxCount > 0 && Game.BoxesClaimed == Game.BoxCount ? 1 : 0;
        if (!fault.empty())
            std::printf("Seed %d: %s\n", firstSeed + game, fault.c_str());
        if ((game + 1) % 1000 == 0 || game + 1 == games)
            std::printf("%d games, %d of them to the last box, %ld boxes\n", game + 1, wholeGames,
                        boxes);
        std::fflush(stdout);
    }
    return fault.empty() ? 0 : 1;
}
