// The player of wave files. It plays in the background, and no call of it waits for anything: not
// for a drive, a device or a sound server, whatever these do or fail to do, nor for a sound to end.
// A call takes some microseconds. What a later call says replaces what was not yet done.
#pragma once

#include <string>

enum class WaveCommand { Open, Play, Close };

// The kind of device that the game plays on: "WaveAudio", the only one there is. Any other is
// silence.
void SetWaveDeviceType(const std::string& deviceType);

// Names the file that the next Open takes.
void SetWaveFile(const std::string& fileName);

// Open takes the file, Play starts it, Close silences it and gives the device back: also while it
// is still being read, or its device is still being opened. A missing or broken file, a machine
// without sound and a command out of order are all silence.
void CommandWavePlayer(WaveCommand command);
