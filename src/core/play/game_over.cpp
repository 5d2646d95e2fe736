#include "core/play/game_over.h"

#include "core/rules/pacing.h"
#include "core/state/game_state.h"
#include "display/news.h"
#include "display/sound.h"
#include "display/status_panel.h"

namespace {

constexpr int BlinkRounds = 6;
constexpr float BlinkStep = 0.25F; // seconds

// 1 or 2, 0 = draw.
int Winner() {
    if (Game.PlayerScore.at(1) > Game.PlayerScore.at(2))
        return 1;
    return Game.PlayerScore.at(1) < Game.PlayerScore.at(2) ? 2 : 0;
}

void ShowWinner(int winner) {
    const std::string& name = Game.PlayerName.at(winner);
    ShowCaptions({"The Winner Is:"}, {name, name.size()}, winner);
    ShowAllMarkers(false);
    FillAllMarkers(Game.PlayerColor.at(winner));
    PlaySound(NextSound(IsComputer(winner) ? Game.ComputerWinSounds : Game.HumanWinSounds));
}

void ShowDraw() {
    ShowCaptions({"It's A Draw."}, {}, 0);
    FillAllMarkers(Black);
    PlaySound(NextSound(Game.DrawSounds));
}

void Blink(MarkerPair pair) {
    ShowMarkers(pair, true);
    Delay(BlinkStep);
    ShowMarkers(pair, false);
}

} // namespace

void ShowGameOver() {
    Game.GameOverShown = true;
    if (const int winner = Winner(); winner != 0)
        ShowWinner(winner);
    else
        ShowDraw();
    TellNews();
    for (int round = 0; round < BlinkRounds; ++round) {
        Blink(MarkerPair::First);
        Blink(MarkerPair::Second);
    }
    ShowAllMarkers(true);
    CloseSound();
    Game.GameOverShown = false;
}
