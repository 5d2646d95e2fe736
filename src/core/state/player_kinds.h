// The kinds of player and what each of them does. A further one is a value and a row here, and the
// place that asks what is new about it.
#pragma once

#include <array>

#include "base/integer.h"

// The values of `PlayerKind`.
enum : Integer { Humanoid, ComputerAverage, ComputerIntelligent, ComputerCheat, KindCount };

struct KindTraits {
    Integer Kind = 0;
    const char* Word = ""; // a computer is called "Computer " and this
    bool IsComputer = true;
    bool AllowsAnyLine = false; // a person may give it a box while another could be taken
    bool GivesLeast = false;    // any of the smallest giveaways ...
    bool ChoosesDeeply = false; // ... or works out which is best
    bool Declines = false;      // leaves the last boxes of a chain to the opponent
};

inline constexpr std::array PlayerKinds{
    KindTraits{.Kind = Humanoid, .Word = "Humanoid", .IsComputer = false, .AllowsAnyLine = true},
    KindTraits{.Kind = ComputerAverage, .Word = "Average", .GivesLeast = true},
    KindTraits{.Kind = ComputerIntelligent, .Word = "Intelligent", .ChoosesDeeply = true},
    KindTraits{.Kind = ComputerCheat,
               .Word = "Cheat",
               .AllowsAnyLine = true,
               .ChoosesDeeply = true,
               .Declines = true}};

constexpr bool EveryKindHasItsRow() {
    for (std::size_t row = 0; row < PlayerKinds.size(); ++row)
        if (PlayerKinds.at(row).Kind != static_cast<int>(row))
            return false;
    return PlayerKinds.size() == KindCount;
}
static_assert(EveryKindHasItsRow());

// A file may hold a number that is no kind: a computer that is called a person.
constexpr KindTraits TraitsOf(int kind) {
    if (kind < 0 || kind >= KindCount)
        return {.Kind = KindCount, .Word = "Humanoid", .ChoosesDeeply = true};
    return PlayerKinds.at(static_cast<std::size_t>(kind));
}
