// Any bytes as a saved game: opened, saved, played on.
#include "display/field.h"
#include "fuzz/target.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

// Whether saving the game loses nothing.
bool IsWellFormed() {
    return Game.GamePaused && TablesMatchField() && Game.GridColumns == FieldColumns() &&
           Game.GridRows == FieldRows() &&
           Game.FieldRight - Game.FieldLeft == FieldColumns() * Game.PointSpacingX &&
           Game.FieldBottom - Game.FieldTop == FieldRows() * Game.PointSpacingY &&
           NamesReadBackAsWritten();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TestDirectory directory;
    StartFresh();
    TheNullDesktop.Answers.assign(9, MessageAnswer::Yes);
    PutBytes("given.qbs", AsText(data, size));
    OpenGame("given.qbs");
    CloseChannel();
    if (IsWellFormed()) {
        SaveGame("saved.qbs");
        const std::string bytes = BytesOf("saved.qbs");
        LoadGame("saved.qbs");
        SaveGame("saved.qbs");
        Require(bytes == BytesOf("saved.qbs"), "a game lasts from file to file");
    }
    Require(UseGameBriefly(), "a next game begins and ends");
    SaveGame("saved.qbs");
    return 0;
}
