#include "support/anything.h"

#include <algorithm>
#include <iterator>

#include "core/play/game_setup.h"
#include "display/status_panel.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

// Takes a digit between 0 and `count` - 1 off a number.
int TakeDigit(std::uint32_t& number, std::uint32_t count) {
    const std::uint32_t digit = number % count;
    number /= count;
    return static_cast<int>(digit);
}

// What the dialogs store.
void StoreGrid(std::uint32_t choice) {
    FitGridToPicture();
    Game.GridColumns = ToInteger(1 + TakeDigit(choice, 5));
    Game.GridRows = ToInteger(1 + TakeDigit(choice, 4));
    Game.BackgroundColor = frmQuibsMain.picPlayingField.BackColor = TakeDigit(choice, 3);
    Game.PointColor = BrightWhite - TakeDigit(choice, 3);
}

void StorePlayers(std::uint32_t choice) {
    for (const int player : {1, 2}) {
        Game.PlayerKind.at(player) = ToInteger(TakeDigit(choice, 4));
        Game.PlayerColor.at(player) = TakeDigit(choice, 3);
        Game.PlayerName.at(player) = TakeDigit(choice, 2) == 0 ? "" : "Ann";
        ShowPlayerStatus(player);
    }
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
    picPlayingField_MouseMove(static_cast<float>(100 * TakeDigit(choice, 90)),
                              static_cast<float>(100 * TakeDigit(choice, 70)));
}

} // namespace

void DoAnything(std::uint32_t number) {
    using Thing = void (*)(std::uint32_t);
    constexpr Thing things[] = {
        StoreGrid,
        StorePlayers,
        Resize,
        PressAnyLine,
        PressAnyLine,
        PointAnywhere,
        [](std::uint32_t) { OpenGame("saved.qbs"); },
        [](std::uint32_t) { SaveGameAs(".", "saved"); },
        [](std::uint32_t) { TheNullDesktop.Clock = 86399.9; }, // midnight is near
        [](std::uint32_t) { picPlayingField_MouseDown(); },
        [](std::uint32_t command) { RunCommand(static_cast<Command>(command % CommandCount)); }};
    constexpr std::uint32_t commands = 9; // as likely as the other things together
    TheNullDesktop.Answers.assign(9, TakeDigit(number, 4) == 0 ? MessageAnswer::Yes
                                                               : MessageAnswer::No);
    const auto thing = static_cast<std::size_t>(TakeDigit(number, std::size(things) + commands));
    RunGuarded([=] { things[std::min(thing, std::size(things) - 1)](number); });
}
