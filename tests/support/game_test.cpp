#include "support/game_test.h"

#include <random>

#include "core/game_setup.h"
#include "core/random.h"
#include "display/safe_lines.h"

::testing::AssertionResult BoardIsSound() {
    auto result = ::testing::AssertionSuccess();
    const auto require = [&result](const char* what, int number, int stored, int counted) {
        if (stored != counted)
            result = ::testing::AssertionFailure()
                     << what << " " << number << " is " << stored << ", not " << counted;
    };
    int linesDrawn = 0;
    for (int line = 1; line <= Game.LineCount; ++line) {
        const int drawn = Game.Lines.at(line).Drawn;
        require("the mark of line", line, drawn, drawn == 0 ? 0 : line);
        linesDrawn += drawn != 0 ? 1 : 0;
    }
    PerPlayer<int> owned;
    for (int box = 1; box <= Game.BoxCount; ++box) {
        const Box& checked = Game.Boxes.at(box);
        int sides = 0;
        for (const Integer side : checked.Sides)
            sides += Game.Lines.at(side).Drawn != 0 ? 1 : 0;
        require("the count of sides of box", box, checked.SidesDrawn, sides);
        require("the owning of box", box, checked.Owner != 0, sides == 4);
        if (checked.Owner != 0)
            ++owned.at(checked.Owner);
    }
    for (const int player : {1, 2})
        require("the score of player", player, Game.PlayerScore.at(player), owned.at(player));
    require("the sum of boxes from row", 1, Game.BoxesClaimed, owned.at(1) + owned.at(2));
    require("the sum of lines from row", 1, Game.LinesDrawn, linesDrawn);
    require("the emptiness of row", 0, Game.Boxes.at(0) == Box{} && Game.Lines.at(0) == Line{}, 1);
    return result;
}

void SetUpGame(int columns, int rows, Integer firstKind, Integer secondKind) {
    Game.GridColumns = ToInteger(columns);
    Game.GridRows = ToInteger(rows);
    Game.PlayerKind = {{firstKind, secondKind}};
    NewGame();
    Game.CurrentPlayer = 1;
    Game.GameInPlay = true;
}

void DrawForNobody(const std::vector<int>& lines) {
    for (const int number : lines) {
        Line& line = Game.Lines.at(number);
        line.Drawn = Game.LastLine = ToInteger(number);
        Increase(Game.LinesDrawn, 1);
        for (const Integer box : {line.FirstBox, line.SecondBox}) {
            if (box == 0)
                continue;
            Increase(Game.Boxes.at(box).SidesDrawn, 1);
            if (Game.Boxes.at(box).SidesDrawn == 4) {
                Game.Boxes.at(box).Owner = 1;
                Increase(Game.PlayerScore.at(1), 1);
                Increase(Game.BoxesClaimed, 1);
            }
        }
    }
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
