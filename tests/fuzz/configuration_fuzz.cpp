// Any bytes as the configuration: read at start, played with, written at exit and read again.
#include <cstdint>
#include <cstdlib>

#include "core/game_state.h"
#include "platform/controls.h"
#include "storage/configuration.h"
#include "support/brief_use.h"
#include "support/files.h"
#include "ui/commands.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TestDirectory directory;
    const std::string file = "QUIBLNK.CFG";
    BeginAnew();
    const GameState builtIn = Game;
    PutBytes(file, {reinterpret_cast<const char*>(data), size});
    Form_Load();
    const bool isPlayable = Game == builtIn || UseGameBriefly();
    Game.SettingsChanged = true;
    mnuExit_Click();
    const std::string written = BytesOf(file);
    const bool readsBack =
        ReadsBackAsWritten(Game.PlayerName.at(1)) && ReadsBackAsWritten(Game.PlayerName.at(2));
    BeginAnew();
    Form_Load();
    Game.SettingsChanged = true;
    mnuExit_Click();
    if (!isPlayable || written.empty() || (readsBack && written != BytesOf(file)))
        std::abort();
    return 0;
}
