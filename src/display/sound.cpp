#include "display/sound.h"

#include "base/files.h"
#include "base/random.h"
#include "platform/wave_player.h"

namespace {

SoundList FindSounds(const std::string& prefix) {
    constexpr int mostSounds = 10;
    SoundList found;
    for (int number = 1; number <= mostSounds; ++number) {
        const std::string name = prefix + std::to_string(number) + ".wav";
        if (FileExists(name))
            found.Names.push_back(name);
    }
    if (!found.Names.empty())
        found.Next = RandomPick(static_cast<int>(found.Names.size()));
    return found;
}

} // namespace

void PlaySound(const std::string& fileName) {
    const bool isThere = FileExists(fileName); // asked whether sound is on or not
    if (!isThere || !Game.SoundOn)
        return;
    SetWaveFile(fileName);
    CommandWavePlayer(WaveCommand::Open);
    CommandWavePlayer(WaveCommand::Play);
}

void CloseSound() {
    CommandWavePlayer(WaveCommand::Close);
}

std::string NextSound(SoundList& sounds) {
    Increase(sounds.Next, 1);
    if (sounds.Next > static_cast<int>(sounds.Names.size()))
        sounds.Next = 1;
    return sounds.Names.empty() ? "" : sounds.Names.at(static_cast<std::size_t>(sounds.Next) - 1);
}

void FindOutcomeSounds() {
    Game.ComputerWinSounds = FindSounds("SndC");
    Game.HumanWinSounds = FindSounds("SndH");
    Game.DrawSounds = FindSounds("SndT");
}
