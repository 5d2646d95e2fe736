// Any bytes as the configuration: taken whole or not at all, written, read again and played with.
#include "fuzz/target.h"
#include "storage/configuration.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

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
    LetPersonsPlay(1);
    TheNullDesktop.WhenYielding = [] {
        RunGuarded(Form_Resize);
        Game.QuitRequested = TheNullDesktop.Yields > 40;
    };
    if (!(read == builtIn))
        RunCommand(Command::Start);
    Require(!Game.GameInPlay, "a game begins and ends");
    for (const MessageBox& box : TheNullDesktop.Boxes)
        Require(box.Title == "Illegal Move", "no settings make a game fail");
}
