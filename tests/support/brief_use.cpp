#include "support/brief_use.h"

#include <algorithm>

#include "core/game_state.h"
#include "core/random.h"
#include "display/field.h"
#include "platform/null/null_desktop.h"
#include "storage/value_file.h"
#include "ui/commands.h"

namespace {

void PointAt(int x, int y) {
    RunGuarded([=] { picPlayingField_MouseMove(static_cast<float>(x), static_cast<float>(y)); });
}

// Whether the game had a whole board when it began.
bool PlayBriefly() {
    constexpr int mostYields = 40;
    int yields = 0;
    bool beganWhole = false;
    TheNullDesktop.WhenIdle = [] {
        RunGuarded([] { RunCommand(Command::Hint); });
        PressOpenLine();
    };
    TheNullDesktop.WhenYielding = [&] {
        if (++yields == 1)
            beganWhole = Game.GameInPlay && TablesMatchField();
        if (yields % 8 == 0)
            RunGuarded([] { Form_Resize(); });
        if (yields >= mostYields)
            Game.QuitRequested = Game.GameInPlay;
    };
    RunGuarded([] { RunCommand(Command::Start); });
    TheNullDesktop.WhenYielding = nullptr;
    TheNullDesktop.WhenIdle = nullptr;
    return beganWhole && !Game.GameInPlay;
}

} // namespace

void BeginAnew() {
    static const GameState atStart = [] {
        Game = GameState{};
        Form_Load();
        return Game;
    }();
    static const MainWindowControls controlsAtStart = frmQuibsMain;
    Game = atStart;
    frmQuibsMain = controlsAtStart;
    CloseChannel();
    SeedRandom(1);
    ResetNullDesktop();
    TheNullDesktop.Answers.assign(500, MessageAnswer::Yes);
}

void PressOpenLine() {
    const auto open = std::find_if(Game.Lines.begin() + 1, Game.Lines.end(),
                                   [](const Line& line) { return line.Drawn == 0; });
    if (open == Game.Lines.end())
        return;
    const bool isVertical = open - Game.Lines.begin() > Game.HorizontalLineCount;
    PointAt(open->X + (isVertical ? 0 : Game.PointSpacingX / 2),
            open->Y + (isVertical ? Game.PointSpacingY / 2 : 0));
    RunGuarded([] { picPlayingField_MouseDown(); });
}

bool UseGameBriefly() {
    RunGuarded([] { Form_Resize(); });
    PressOpenLine();
    PlayBriefly();
    // Without a pause this begins a new game, which heals everything.
    Game.GamePaused = false;
    return PlayBriefly();
}

bool ReadsBackAsWritten(const std::string& name) {
    return name.find(',') == std::string::npos && name.find_first_of(" \"") != 0;
}
