// Any bytes as a saved game: opened, saved, played on.
#include <cstdint>
#include <cstdlib>

#include "core/game_state.h"
#include "display/field.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"
#include "support/brief_use.h"
#include "support/files.h"
#include "ui/commands.h"

namespace {

// Whether saving the game loses nothing.
bool IsWellFormed() {
    return Game.GamePaused && TablesMatchField() && Game.GridColumns == FieldColumns() &&
           Game.GridRows == FieldRows() &&
           Game.FieldRight - Game.FieldLeft == FieldColumns() * Game.PointSpacingX &&
           Game.FieldBottom - Game.FieldTop == FieldRows() * Game.PointSpacingY &&
           ReadsBackAsWritten(Game.PlayerName.at(1)) && ReadsBackAsWritten(Game.PlayerName.at(2));
}

void Require(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TestDirectory directory;
    const std::string given = directory.Path + "/given.qbs";
    const std::string saved = directory.Path + "/saved.qbs";
    BeginAnew();
    PutBytes(given, {reinterpret_cast<const char*>(data), size});
    OpenGame(given);
    CloseChannel();
    if (IsWellFormed()) {
        SaveGame(saved);
        const std::string bytes = BytesOf(saved);
        LoadGame(saved);
        SaveGame(saved);
        Require(!bytes.empty() && bytes == BytesOf(saved));
    }
    Require(UseGameBriefly());
    SaveGame(saved);
    return 0;
}
