#include "storage/configuration.h"

#include <chrono>
#include <exception>
#include <utility>

#include "base/random.h"
#include "core/state/game_state.h"
#include "display/field.h"
#include "display/sound.h"
#include "storage/value_file.h"

namespace {

constexpr const char* FileName = "QUIBLNK.CFG";

void SetBuiltInValues() {
    Game.CurrentPlayer = 1;
    static_cast<PlayerSettings&>(Game) = {
        .PlayerName = {{"Colossus", "Guardian"}},
        .PlayerKind = {{ComputerIntelligent, ComputerAverage}},
        .PlayerColor = {{Black, BrightWhite}},
    };
    static_cast<GridSettings&>(Game) = {
        .GridColumns = 10,
        .GridRows = 10,
        .BackgroundColor = Black,
        .PointColor = BrightWhite,
        .GhostColor = LightRed,
        .ComputerGhostColor = LightGreen,
    };
    ResetPointSpacing();
    Game.SoundOn = true;
    Game.SettingsChanged = true;
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
