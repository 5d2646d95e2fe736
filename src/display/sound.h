// Sound effects. Every file is optional, and a missing one is silence.
#pragma once

#include <string>

#include "core/state/game_state.h"

// Plays a wave file of the current directory in the background if sound is on and the file exists.
void PlaySound(const std::string& fileName);

// Silences what is still playing.
void CloseSound();

// Takes the next name of the list, in turn. Empty when the list is.
std::string NextSound(SoundList& sounds);

// Fills the three outcome lists with the files found in the current directory and lets each begin
// at a random one.
void FindOutcomeSounds();
