// What a user may do at any moment, for the soak, the signature and the stories of the fuzzers.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

// One of all the things that a user may do with the window as it is; every number stands for one.
// Needs the null desktop.
void DoAnything(std::uint32_t number);

// The text of a saved game with up to three of its numbers changed, and seldom cut short.
std::string Damaged(std::string text, std::uint32_t seed);

// Opens a file of such a text, if a file may be opened.
void OpenDamaged(const std::string& text);

// What is wrong with the game as it stands, or with what it told; "" = nothing. Such a game may be
// refused where it begins, and is sound from then on.
std::string FaultSeen();

// Plays a fresh program's first game to its end, or to that of the program, while anything happens,
// and looks before and after it.
void PlayAnyGame(std::uint32_t seed, const std::function<void()>& look);
