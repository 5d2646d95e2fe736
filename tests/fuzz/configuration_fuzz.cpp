// Any bytes as the configuration: taken whole or not at all, written and read again.
#include "fuzz/target.h"
#include "storage/configuration.h"
#include "support/files.h"
#include "support/person.h"

void TryInput(const std::string& input) {
    static const TestDirectory directory;
    std::filesystem::remove("QUIBLNK.CFG");
    StartFresh();
    const GameState builtIn = Game;
    GameState silent = builtIn;
    silent.SoundOn = false; // the last value
    const auto readOver = [](const GameState& settings) {
        Game = settings;
        ReadConfiguration();
        return Game;
    };
    PutBytes("QUIBLNK.CFG", input);
    const GameState readOverSilent = readOver(silent);
    const GameState read = readOver(builtIn);
    Require(read == readOverSilent || (read == builtIn && readOverSilent == silent),
            "settings are taken whole or not at all");
    Game.SettingsChanged = true;
    WriteConfiguration();
    Require(!NamesReadBackAsWritten() || readOver(builtIn) == read, "settings last");
}
