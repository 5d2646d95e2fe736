// What the wave player uses of ALSA. Linked with the program, ALSA's library would take a fortieth
// of the processor time of every start, also of those where nothing is played.
#pragma once

#include <alsa/asoundlib.h>
#include <dlfcn.h>

// NOLINTNEXTLINE(bugprone-macro-parentheses): a name has none.
#define ALSA_FUNCTION(name) decltype(&::name) name = Find<decltype(&::name)>(#name)

class AlsaLibrary {
    void* Library = dlopen("libasound.so.2", RTLD_NOW);
    bool IsWhole = Library != nullptr;

    template <class Function>
    Function Find(const char* name) {
        void* found = IsWhole ? dlsym(Library, name) : nullptr;
        IsWhole = found != nullptr;
        return reinterpret_cast<Function>(found);
    }

public:
    ALSA_FUNCTION(snd_config_update_free_global);
    ALSA_FUNCTION(snd_lib_error_set_handler);
    ALSA_FUNCTION(snd_pcm_close);
    ALSA_FUNCTION(snd_pcm_open);
    ALSA_FUNCTION(snd_pcm_poll_descriptors);
    ALSA_FUNCTION(snd_pcm_poll_descriptors_count);
    ALSA_FUNCTION(snd_pcm_poll_descriptors_revents);
    ALSA_FUNCTION(snd_pcm_prepare);
    ALSA_FUNCTION(snd_pcm_set_params);
    ALSA_FUNCTION(snd_pcm_start);
    ALSA_FUNCTION(snd_pcm_state);
    ALSA_FUNCTION(snd_pcm_writei);

    // Otherwise no function may be called.
    bool IsThere() const { return IsWhole; }
};

#undef ALSA_FUNCTION

// Loaded when it is first asked for; it stays.
inline const AlsaLibrary& Alsa() {
    static const AlsaLibrary library;
    return library;
}
