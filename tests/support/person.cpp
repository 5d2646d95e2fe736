#include "support/person.h"

#include <random>
#include <stdexcept>

#include "base/random.h"
#include "storage/value_file.h"
#include "ui/commands.h"

void StartFresh() {
    Game = GameState{};
    frmQuibsMain = MainWindowControls{};
    CloseChannel();
    ResetNullDesktop();
    Form_Load();
    SeedRandom(1);
}

void PointTo(PointerPlace place) {
    TheNullDesktop.Pointer = place;
    RunGuarded([place] { picPlayingField_MouseMove(place.X, place.Y); });
}

void PointAt(int line) {
    const Line& target = Game.Lines.at(line);
    const bool isVertical = line > Game.HorizontalLineCount;
    PointTo({static_cast<float>(target.X + (isVertical ? 0 : Game.PointSpacingX / 2)),
             static_cast<float>(target.Y + (isVertical ? Game.PointSpacingY / 2 : 0))});
}

void PressHere() {
    const PointerPlace place = TheNullDesktop.Pointer;
    RunGuarded([place] { picPlayingField_MouseDown(place.X, place.Y); });
}

void PressLine(int line) {
    PointAt(line);
    PressHere();
}

std::vector<int> UndrawnLines() {
    std::vector<int> lines;
    for (std::size_t line = 1; line < Game.Lines.size(); ++line)
        if (Game.Lines.at(line).Drawn == 0)
            lines.push_back(static_cast<int>(line));
    return lines;
}

void LetPersonsPlay(std::uint32_t seed) {
    TheNullDesktop.WhenIdle = [chance = std::minstd_rand(seed)]() mutable {
        if (TheNullDesktop.Yields > 100'000)
            throw std::logic_error("the game takes no line of a person");
        TheNullDesktop.Answers.assign(9, MessageAnswer::Yes);
        RunGuarded([] { RunCommand(Command::Hint); });
        picPlayingField_KeyDown(static_cast<FieldKey>(chance() % FieldKeyCount));
        const std::vector<int> lines = UndrawnLines();
        if (!lines.empty())
            PressLine(lines.at(chance() % lines.size()));
    };
}
