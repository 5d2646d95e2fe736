// Plays wave files on whatever sound system the desktop has. Sound is opened with the first file,
// so that a machine without it starts as quickly.
#include <SDL.h>
#include <alsa/asoundlib.h>
#include <filesystem>

#include "platform/wave_player.h"

namespace {

constexpr std::uintmax_t LargestFile = 8 << 20; // a larger one would hold up the game

bool isWaveAudio = false;
std::string waveFile;
SDL_AudioDeviceID device = 0; // 0 = closed

// NOLINTNEXTLINE(cert-dcl50-cpp): its library wants it variadic.
void IgnoreAlsaError(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                     const char* /*format*/, ...) {}

bool SoundIsThere() {
    static const bool isThere = [] {
        snd_lib_error_set_handler(IgnoreAlsaError); // else it writes to stderr
        SDL_SetHint(SDL_HINT_APP_NAME, "Quiblink");
        return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    }();
    return isThere;
}

void Close() {
    if (device != 0)
        SDL_CloseAudioDevice(device);
    device = 0;
}

void Open() {
    Close();
    if (!isWaveAudio)
        return;
    std::error_code unreadable;
    const std::uintmax_t bytesOnDisk = std::filesystem::file_size(waveFile, unreadable);
    if (unreadable || bytesOnDisk > LargestFile || !SoundIsThere())
        return;
    SDL_AudioSpec format;
    Uint8* samples = nullptr;
    Uint32 bytes = 0;
    if (SDL_LoadWAV(waveFile.c_str(), &format, &samples, &bytes) == nullptr)
        return;
    device = SDL_OpenAudioDevice(nullptr, 0, &format, nullptr, 0);
    if (device != 0)
        SDL_QueueAudio(device, samples, bytes);
    SDL_FreeWAV(samples);
}

} // namespace

void SetWaveDeviceType(const std::string& deviceType) {
    isWaveAudio = deviceType == "WaveAudio";
}

void SetWaveFile(const std::string& fileName) {
    waveFile = fileName;
}

void CommandWavePlayer(WaveCommand command) {
    switch (command) {
    case WaveCommand::Open:
        Open();
        break;
    case WaveCommand::Play:
        if (device != 0)
            SDL_PauseAudioDevice(device, 0);
        break;
    case WaveCommand::Close:
        Close();
        break;
    }
}
