// How long the computer players and the largest fields take, headless.
#include <benchmark/benchmark.h>

#include "ai/chain_tracing.h"
#include "ai/move_selection.h"
#include "base/random.h"
#include "core/play/game_setup.h"
#include "core/state/game_state.h"
#include "display/field.h"
#include "display/safe_lines.h"
#include "platform/null/null_desktop.h"
#include "ui/commands.h"

namespace {

constexpr int LargestSide = 86;

// An empty field, square, with player 1 to move and room for the largest on the picture.
void SetUpField(int side, Integer kind) {
    ResetNullDesktop();
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = 32700;
    Form_Load();
    SeedRandom(1);
    Game.GridColumns = Game.GridRows = ToInteger(side);
    Game.PlayerKind.at(1) = kind;
    Game.PlayerKind.at(2) = ComputerAverage;
    NewGame();
    Game.CurrentPlayer = 1;
}

void SetUpFieldWithoutSafeLines(int side, Integer kind) {
    SetUpField(side, kind);
    DrawSafeLines();
}

int Argument(const benchmark::State& state, std::size_t position = 0) {
    return static_cast<int>(state.range(position));
}

Integer FirstUndrawnLine() {
    Integer line = 1;
    while (Game.Lines.at(line).Drawn != 0)
        ++line;
    return line;
}

void TraceOneChain(benchmark::State& state) {
    SetUpFieldWithoutSafeLines(Argument(state), ComputerAverage);
    const Integer line = FirstUndrawnLine();
    for (auto _ : state)
        TraceChain(line);
}
BENCHMARK(TraceOneChain)->Arg(10)->Arg(LargestSide);

void ChooseInTheOpening(benchmark::State& state) {
    SetUpField(Argument(state), ComputerAverage);
    for (auto _ : state)
        ChooseComputerMove();
}
BENCHMARK(ChooseInTheOpening)->Arg(5)->Arg(10)->Arg(20)->Arg(40)->Arg(LargestSide);

// The second argument is the kind of the player.
void ChooseWithNoSafeLineLeft(benchmark::State& state) {
    SetUpFieldWithoutSafeLines(Argument(state), ToInteger(Argument(state, 1)));
    for (auto _ : state)
        ChooseComputerMove();
}
BENCHMARK(ChooseWithNoSafeLineLeft)
    ->ArgsProduct({{5, 10, 20, 40, LargestSide},
                   {ComputerAverage, ComputerIntelligent, ComputerCheat}})
    ->Unit(benchmark::kMillisecond);

// Both players of one kind; the clock of the null desktop makes the pauses free.
void PlayAWholeGame(benchmark::State& state) {
    SetUpField(10, ToInteger(Argument(state)));
    Game.PlayerKind.at(2) = Game.PlayerKind.at(1);
    for (auto _ : state)
        RunCommand(Command::Start);
}
BENCHMARK(PlayAWholeGame)
    ->Arg(ComputerAverage)
    ->Arg(ComputerIntelligent)
    ->Arg(ComputerCheat)
    ->Unit(benchmark::kMillisecond);

void DrawAllSafeLines(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        SetUpField(LargestSide, ComputerAverage);
        state.ResumeTiming();
        DrawSafeLines();
    }
}
BENCHMARK(DrawAllSafeLines)->Unit(benchmark::kMillisecond);

void RedrawTheField(benchmark::State& state) {
    SetUpFieldWithoutSafeLines(LargestSide, ComputerAverage);
    for (auto _ : state)
        RedrawField();
}
BENCHMARK(RedrawTheField)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
