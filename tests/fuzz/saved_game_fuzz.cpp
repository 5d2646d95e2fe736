// Any bytes as a saved game: opened, saved, played on.
#include <utility>

#include "fuzz/target.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

void TryInput(const std::string& input) {
    const TestDirectory directory;
    StartFresh();
    TheNullDesktop.Answers.assign(9, MessageAnswer::Yes);
    PutBytes("given.qbs", input);
    OpenGame("given.qbs");
    CloseChannel();
    // The first round may mend a field of another width than its boxes have.
    std::string bytes, before;
    for (int round = 1; round <= 3 && Game.GamePaused && NamesReadBackAsWritten(); ++round) {
        SaveGame("saved.qbs");
        before = std::exchange(bytes, BytesOf("saved.qbs"));
        LoadGame("saved.qbs");
    }
    Require(bytes == before, "a game lasts from file to file");
    Require(UseGameBriefly(), "a next game begins and ends");
    SaveGame("saved.qbs");
}
