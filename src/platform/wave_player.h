// The player of wave files. It plays in the background: no command waits for a sound to end.
#pragma once

#include <string>

enum class WaveCommand { Open, Play, Close };

// The kind of device that the game plays on: "WaveAudio", the only one there is. Any other is
// silence.
void SetWaveDeviceType(const std::string& deviceType);

// Names the file that the next Open reads.
void SetWaveFile(const std::string& fileName);

// Open loads the file, Play starts it, Close silences and forgets it. A missing or broken file, a
// machine without sound and a command out of order are all silence.
void CommandWavePlayer(WaveCommand command);
