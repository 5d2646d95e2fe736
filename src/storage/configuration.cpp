#include "storage/configuration.h"

#include <chrono>
#include <exception>
#include <utility>

#include "base/random.h"
#include "core/state/game_state.h"
#include "display/sound.h"
#include "storage/value_file.h"

namespace {

constexpr const char* FileName = "QUIBLNK.CFG";

void SetBuiltInValues() {
    Game.PlayerColor.at(1) = Black;
    Game.PlayerName.at(1) = "Colossus";
    Game.PlayerKind.at(1) = ComputerIntelligent;
    Game.PlayerColor.at(2) = BrightWhite;
    Game.PlayerName.at(2) = "Guardian";
    Game.PlayerKind.at(2) = ComputerAverage;
    Game.BackgroundColor = Black;
    Game.ComputerGhostColor = LightGreen;
    Game.GhostColor = LightRed;
    Game.PointColor = BrightWhite;
    Game.GridColumns = 10;
    Game.GridRows = 10;
    Game.SoundOn = true;
}

// The values in the order of the file; `visit` reads or writes each of them.
template <class Visit>
void VisitSettings(Settings& settings, Visit visit) {
    visit(settings.BackgroundColor);
    visit(settings.ComputerGhostColor);
    visit(settings.GhostColor);
    visit(settings.PointColor);
    visit(settings.GridColumns);
    visit(settings.GridRows);
    for (const int player : {1, 2}) {
        visit(settings.PlayerColor.at(player));
        visit(settings.PlayerName.at(player));
        visit(settings.PlayerKind.at(player));
    }
    visit(settings.SoundOn);
}

} // namespace

void SetDefaults() {
    SeedRandom(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
    SetBuiltInValues();
    ReadConfiguration();
    frmQuibsMain.picPlayingField.BackColor = Game.BackgroundColor;
    StateOf(Command::Sound).Checked = Game.SoundOn;
    FindOutcomeSounds();
}

void ReadConfiguration() {
    try {
        OpenForInput(FileName);
        Settings read = Game;
        VisitSettings(read, [](auto& value) { ReadValue(value); });
        static_cast<Settings&>(Game) = std::move(read);
    } catch (const std::exception&) {
        // Without a whole file the settings stay as they are.
    }
    CloseChannel();
    Game.SettingsChanged = false;
}

void WriteConfiguration() {
    if (!Game.SettingsChanged)
        return;
    std::string text;
    VisitSettings(Game, [&text](const auto& value) { AppendValue(text, value); });
    WriteFile(FileName, text);
}
