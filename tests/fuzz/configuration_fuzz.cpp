// Any bytes as the configuration: taken whole or not at all, written, read again and played with.
#include "fuzz/target.h"
#include "storage/configuration.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

GameState ReadOver(const GameState& settings) {
    Game = settings;
    ReadConfiguration();
    return Game;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TestDirectory directory;
    std::filesystem::remove("QUIBLNK.CFG");
    StartFresh();
    const GameState builtIn = Game;
    GameState silent = builtIn;
    silent.SoundOn = false; // the last value
    PutBytes("QUIBLNK.CFG", AsText(data, size));
    const GameState readOverSilent = ReadOver(silent);
    const GameState read = ReadOver(builtIn);
    Require(read == readOverSilent || (read == builtIn && readOverSilent == silent),
            "settings are taken whole or not at all");
    Game.SettingsChanged = true;
    WriteConfiguration();
    Require(!NamesReadBackAsWritten() || ReadOver(builtIn) == read, "settings last");
    Require(read == builtIn || UseGameBriefly(), "a game begins and ends");
    for (const MessageBox& box : TheNullDesktop.Boxes)
        Require(box.Title == "Illegal Move", "no settings make a game fail");
    return 0;
}
