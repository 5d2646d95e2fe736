#include "support/anything.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <random>
#include <utility>

#include "core/play/game_setup.h"
#include "display/command_states.h"
#include "storage/value_file.h"
#include "support/board.h"
#include "support/files.h"
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

void PressAnyKey(std::uint32_t choice) {
    picPlayingField_KeyDown(static_cast<FieldKey>(choice % FieldKeyCount));
}

// Or presses there, after a movement over a dialog or a menu, which the field does not hear of.
void PointAnywhere(std::uint32_t choice) {
    const PointerPlace place{static_cast<float>(100 * TakeDigit(choice, 90)),
                             static_cast<float>(100 * TakeDigit(choice, 70))};
    if (TakeDigit(choice, 2) == 0)
        return PointTo(place);
    TheNullDesktop.Pointer = place;
    PressHere();
}

bool mayBeDamaged = false; // the game that waits to be started

} // namespace

std::string Damaged(std::string text, std::uint32_t seed) {
    std::mt19937 chance(seed);
    for (auto changes = chance() % 4; changes > 0 && !text.empty(); --changes) {
        const std::size_t begin = text.rfind('\n', chance() % text.size()) + 1;
        const std::size_t end = std::min(text.find('\r', begin), text.size());
        const int number = std::atoi(text.c_str() + begin);
        const int small = static_cast<int>(chance() % 32);
        const int numbers[] = {small, small, small, number + 1, number - 1, -small, 32767, -32768};
        text.replace(begin, end - begin, std::to_string(numbers[chance() % std::size(numbers)]));
    }
    if (chance() % 32 == 0)
        text.resize(chance() % (text.size() + 1));
    return text;
}

void OpenDamaged(const std::string& text) {
    if (!IsEnabled(Command::Open))
        return;
    mayBeDamaged = true;
    PutBytes("given.qbs", text);
    OpenGame("given.qbs");
    CloseChannel();
}

std::string FaultSeen() {
    const bool isUnderWay = Game.GameInPlay || (Game.GamePaused && !mayBeDamaged);
    std::string fault = isUnderWay && !BoardIsSound() ? "the board is not sound" : "";
    for (const MessageBox& box : std::exchange(TheNullDesktop.Boxes, {}))
        if (box.Title == "Quiblink" && !mayBeDamaged)
            fault = box.Text;
    if (Game.GameInPlay)
        mayBeDamaged = false;
    return fault;
}

void DoAnything(std::uint32_t number) {
    using Thing = void (*)(std::uint32_t);
    constexpr Thing things[] = {
        ChooseGrid,
        ChoosePlayers,
        Resize,
        PressAnyLine,
        PressAnyKey,
        PointAnywhere,
        [](std::uint32_t seed) { OpenDamaged(Damaged(BytesOf("saved.qbs"), seed)); },
        [](std::uint32_t) { OpenGame("saved.qbs"); },
        [](std::uint32_t) { SaveGameAs(".", mayBeDamaged ? "damaged" : "saved"); },
        [](std::uint32_t) { TheNullDesktop.Clock = 86399.5; }, // midnight is near
        [](std::uint32_t) { PressHere(); },
        [](std::uint32_t command) { RunCommand(static_cast<Command>(command % CommandCount)); }};
    constexpr std::uint32_t commands = 10; // as likely as the other things together
    TheNullDesktop.Answers.assign(9, TakeDigit(number, 4) == 0 ? MessageAnswer::Yes
                                                               : MessageAnswer::No);
    const auto thing = static_cast<std::size_t>(TakeDigit(number, std::size(things) + commands));
    RunGuarded([=] { things[std::min(thing, std::size(things) - 1)](number); });
}

void PlayAnyGame(std::uint32_t seed, const std::function<void()>& look) {
    std::mt19937 chance(seed);
    StartFresh();
    Game.TwipsPerPixelX = 12; // or across and down could be mixed up
    Game.GridColumns = ToInteger(1 + static_cast<int>(chance() % 9));
    Game.GridRows = ToInteger(1 + static_cast<int>(chance() % 7));
    TheNullDesktop.IsListenedTo = chance() % 4 != 0;
    LetPersonsPlay(seed);
    const auto doAnything = [&] { DoAnything(static_cast<std::uint32_t>(chance())); };
    TheNullDesktop.WhenYielding = TheNullDesktop.WhenAsked = [&] {
        look();
        for (; chance() % 3 == 0; look())
            doAnything();
    };
    do {
        doAnything();
        RunGuarded([] { RunCommand(Command::Start); });
        look();
    } while (Game.GamePaused && !Game.ProgramEnding);
}
