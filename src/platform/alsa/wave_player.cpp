// Plays wave files with ALSA, which leads to PulseAudio or PipeWire where one of them runs. All
// that can take its time, from the file to the sound server, is done by one worker thread; the
// window's thread leaves word of the newest wish and goes on. A worker that hangs in a silent
// server is left behind when the program ends, so what the two share is never destroyed.
#include <poll.h>
#include <sched.h>
#include <sys/eventfd.h>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "base/files.h"
#include "platform/alsa/alsa_library.h"
#include "platform/wave_file.h"
#include "platform/wave_player.h"

namespace {

constexpr unsigned BufferMicroseconds = 200'000; // how long the worker may be kept from its work

bool isWaveAudio = false;
std::string waveFile, openedFile;

// The file that is to be heard, of which "" is silence.
class NewestWish {
public:
    void Put(const std::string& file) {
        const std::lock_guard lock(Mutex);
        File = file;
        eventfd_write(News, 1);
    }
    std::string Take() {
        const std::lock_guard lock(Mutex);
        eventfd_t count = 0;
        eventfd_read(News, &count);
        return File;
    }
    // Can be read while there is a wish that was not taken.
    pollfd Descriptor() const { return {News, POLLIN, 0}; }

    bool IsTaken() const {
        pollfd news = Descriptor();
        return poll(&news, 1, 0) == 0;
    }
    void Await() const {
        pollfd news = Descriptor();
        while (IsTaken())
            poll(&news, 1, -1);
    }

private:
    std::mutex Mutex;
    std::string File;
    int News = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

using Device = std::unique_ptr<snd_pcm_t, decltype(&snd_pcm_close)>;

snd_pcm_format_t FormatOf(const Wave& wave) {
    switch (wave.BitsPerSample) {
    case 8:
        return SND_PCM_FORMAT_U8;
    case 16:
        return SND_PCM_FORMAT_S16_LE;
    default:
        return SND_PCM_FORMAT_S24_3LE;
    }
}

Device OpenDevice(const Wave& wave) {
    snd_pcm_t* opened = nullptr;
    Alsa().snd_pcm_open(&opened, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK);
    Device device(opened, Alsa().snd_pcm_close);
    if (device == nullptr ||
        Alsa().snd_pcm_set_params(opened, FormatOf(wave), SND_PCM_ACCESS_RW_INTERLEAVED,
                                  static_cast<unsigned>(wave.Channels),
                                  static_cast<unsigned>(wave.SamplesPerSecond), 1,
                                  BufferMicroseconds) < 0) {
        device.reset();
        Alsa().snd_config_update_free_global(); // which server there is, is found out anew
    }
    return device;
}

// Waits until the device takes more or there is a new wish. Otherwise an error of the device.
int AwaitRoom(snd_pcm_t* device, const NewestWish& newest) {
    const int count = Alsa().snd_pcm_poll_descriptors_count(device);
    std::vector<pollfd> descriptors(static_cast<std::size_t>(count) + 1, newest.Descriptor());
    pollfd* const ofDevice = &descriptors[1];
    Alsa().snd_pcm_poll_descriptors(device, ofDevice, count);
    poll(descriptors.data(), descriptors.size(), -1);
    unsigned short events = 0;
    Alsa().snd_pcm_poll_descriptors_revents(device, ofDevice, count, &events);
    if ((events & (POLLERR | POLLNVAL)) == 0)
        return 0;
    return Alsa().snd_pcm_state(device) == SND_PCM_STATE_XRUN ? -EPIPE : -EIO;
}

// Returns when there is a new wish, or when the device fails.
void Play(const Wave& wave, snd_pcm_t* device, const NewestWish& newest) {
    std::string_view samples = wave.Samples;
    while (!samples.empty() && newest.IsTaken()) {
        auto result =
            Alsa().snd_pcm_writei(device, samples.data(), samples.size() / wave.BytesPerFrame());
        if (result > 0)
            samples.remove_prefix(static_cast<std::size_t>(result) * wave.BytesPerFrame());
        if (result == -EAGAIN)
            result = AwaitRoom(device, newest);
        if (result == -EPIPE) // it ran dry
            result = Alsa().snd_pcm_prepare(device);
        if (result < 0)
            return;
    }
    if (newest.IsTaken() && Alsa().snd_pcm_state(device) == SND_PCM_STATE_PREPARED)
        Alsa().snd_pcm_start(device); // else a short sound waits for the buffer to be full
    newest.Await();
}

// NOLINTNEXTLINE(cert-dcl50-cpp): its library wants it variadic.
void IgnoreAlsaError(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                     const char* /*format*/, ...) {}

void Fulfil(const std::string& file, const NewestWish& newest) {
    const std::optional<std::string> bytes = ReadRegularFile(file, LargestWaveFile + 1);
    const std::optional<Wave> wave = bytes ? ReadWave(*bytes) : std::nullopt;
    if (!wave)
        return;
    const Device device = OpenDevice(*wave);
    if (device != nullptr)
        Play(*wave, device.get(), newest);
}

void Work(NewestWish& newest) {
    // On a busy processor a wish would else put its worker in the place of the window's thread.
    const sched_param unchanged{};
    sched_setscheduler(0, SCHED_BATCH, &unchanged);
    if (!Alsa().IsThere())
        return;
    Alsa().snd_lib_error_set_handler(IgnoreAlsaError); // else it writes to stderr
    for (;;) {
        try {
            Fulfil(newest.Take(), newest);
        } catch (const std::exception&) { // too little memory: a sound is not worth the game
        }
        newest.Await();
    }
}

NewestWish& Newest() {
    static NewestWish& newest = *new NewestWish;
    return newest;
}

// Made when a file is opened, before there is work for it: a new thread is not yet one that lets
// others go first.
bool HasWorker() {
    static const bool hasWorker = [] {
        try {
            std::thread(Work, std::ref(Newest())).detach();
            return true;
        } catch (const std::system_error&) {
            return false;
        }
    }();
    return hasWorker;
}

} // namespace

void SetWaveDeviceType(const std::string& deviceType) {
    isWaveAudio = deviceType == "WaveAudio";
}

void SetWaveFile(const std::string& fileName) {
    waveFile = fileName;
}

void CommandWavePlayer(WaveCommand command) {
    Newest().Put(command == WaveCommand::Play ? openedFile : "");
    if (command != WaveCommand::Play)
        openedFile = command == WaveCommand::Open && isWaveAudio && HasWorker() ? waveFile : "";
}
