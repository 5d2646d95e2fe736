#include "support/person.h"

#include <memory>
#include <random>
#include <stdexcept>

#include "core/random.h"
#include "display/safe_lines.h"
#include "support/game_test.h"
#include "ui/commands.h"

void PointAt(int line) {
    const Line& target = Game.Lines.at(line);
    const bool isVertical = line > Game.HorizontalLineCount;
    picPlayingField_MouseMove(
        static_cast<float>(target.X + (isVertical ? 0 : Game.PointSpacingX / 2)),
        static_cast<float>(target.Y + (isVertical ? Game.PointSpacingY / 2 : 0)));
}

void PressLine(int line) {
    PointAt(line);
    picPlayingField_MouseDown();
}

std::vector<int> UndrawnLines() {
    std::vector<int> lines;
    for (int line = 1; line <= Game.LineCount; ++line)
        if (Game.Lines.at(line).Drawn == 0)
            lines.push_back(line);
    return lines;
}

void LetPersonsPlay(std::uint32_t seed) {
    TheNullDesktop.WhenIdle = [chance = std::make_shared<std::mt19937>(seed),
                               presses = 0]() mutable {
        if (++presses > 10'000)
            throw std::logic_error("the game takes no line of a person");
        TheNullDesktop.Answers = {MessageAnswer::Ok};
        const std::vector<int> lines = UndrawnLines();
        PressLine(lines.at((*chance)() % lines.size()));
    };
}

void DrawRandomPosition(std::uint32_t seed) {
    std::mt19937 chance(seed);
    SeedRandom(seed);
    const bool hasOpening = chance() % 4 != 0;
    if (hasOpening)
        DrawSafeLines();
    const std::size_t most = UndrawnLines().size();
    for (std::size_t left = chance() % (hasOpening ? 4 : most); left > 0; --left) {
        const std::vector<int> lines = UndrawnLines();
        if (!lines.empty())
            DrawForNobody({lines.at(chance() % lines.size())});
    }
}
