#include "storage/configuration.h"

#include <chrono>

#include "core/game_state.h"
#include "core/random.h"
#include "display/sound.h"
#include "display/status_panel.h"

namespace {

constexpr int BoxPixels = 25; // between neighbouring points

void SetBuiltInValues() {
    Game.CurrentPlayer = 1;
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
    Game.PointSpacingX = ToInteger(BoxPixels * Game.TwipsPerPixelX);
    Game.PointSpacingY = ToInteger(BoxPixels * Game.TwipsPerPixelY);
    Game.SoundOn = true;
}

} // namespace

void SetDefaults() {
    SeedRandom(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
    SetBuiltInValues();
    frmQuibsMain.picPlayingField.BackColor = Game.BackgroundColor;
    ShowPlayerColor(1);
    ShowPlayerColor(2);
    StateOf(Command::Sound).Checked = Game.SoundOn;
    FindOutcomeSounds();
}
