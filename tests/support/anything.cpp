#include "support/anything.h"

#include <algorithm>
#include <iterator>

#include "core/play/game_setup.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

// Takes a digit between 0 and `count` - 1 off a number.
int TakeDigit(std::uint32_t& number, std::uint32_t count) {
    const std::uint32_t digit = number % count;
    number /= count;
    return static_cast<int>(digit);
}

void ChooseGrid(std::uint32_t choice) {
    FitGridToPicture();
    GridSettings chosen = Game;
    chosen.GridColumns = ToInteger(1 + TakeDigit(choice, 5));
    chosen.GridRows = ToInteger(1 + TakeDigit(choice, 4));
    chosen.BackgroundColor = TakeDigit(choice, 3);
    chosen.PointColor = BrightWhite - TakeDigit(choice, 3);
    SetGrid(chosen);
}

void ChoosePlayers(std::uint32_t choice) {
    PlayerSettings chosen;
    for (const int player : {1, 2}) {
        chosen.PlayerKind.at(player) = ToInteger(TakeDigit(choice, 4));
        chosen.PlayerColor.at(player) = TakeDigit(choice, 3);
        chosen.PlayerName.at(player) = TakeDigit(choice, 2) == 0 ? "" : "Ann";
    }
    SetPlayers(chosen);
}

void Resize(std::uint32_t choice) {
    TheNullDesktop.PictureWidth = 700 + 700 * TakeDigit(choice, 16);
    TheNullDesktop.PictureHeight = 700 + 700 * TakeDigit(choice, 13);
    if (Form_Resize())
        ShowResizeWarning();
}

void PressAnyLine(std::uint32_t choice) {
    const std::vector<int> lines = UndrawnLines();
    if (!lines.empty())
        PressLine(lines.at(choice % lines.size()));
}

void PointAnywhere(std::uint32_t choice) {
    PointTo({static_cast<float>(100 * TakeDigit(choice, 90)),
             static_cast<float>(100 * TakeDigit(choice, 70))});
}

} // namespace

void DoAnything(std::uint32_t number) {
    using Thing = void (*)(std::uint32_t);
    constexpr Thing things[] = {
        ChooseGrid,
        ChoosePlayers,
        Resize,
        PressAnyLine,
        PressAnyLine,
        PointAnywhere,
        [](std::uint32_t) { OpenGame("saved.qbs"); },
        [](std::uint32_t) { SaveGameAs(".", "saved"); },
        [](std::uint32_t) { TheNullDesktop.Clock = 86399.9; }, // midnight is near
        [](std::uint32_t) { PressHere(); },
        [](std::uint32_t command) { RunCommand(static_cast<Command>(command % CommandCount)); }};
    constexpr std::uint32_t commands = 9; // as likely as the other things together
    TheNullDesktop.Answers.assign(9, TakeDigit(number, 4) == 0 ? MessageAnswer::Yes
                                                               : MessageAnswer::No);
    const auto thing = static_cast<std::size_t>(TakeDigit(number, std::size(things) + commands));
    RunGuarded([=] { things[std::min(thing, std::size(things) - 1)](number); });
}
