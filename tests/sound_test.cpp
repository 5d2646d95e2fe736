// The real wave player, with sound servers of the test's own that lose what is played.
#include <gtest/gtest.h>

#include <chrono>
#include <sys/socket.h>
#include <sys/un.h>

#include "platform/wave_player.h"
#include "support/files.h"

#define SOUND_SERVER QUIBLINK_TESTS "/sound_server"

namespace {

FILE* server = nullptr;  // the newest, which ends with the test
FILE* monitor = nullptr; // what it plays

void Do(std::initializer_list<WaveCommand> commands) {
    const auto start = std::chrono::steady_clock::now();
    for (const WaveCommand command : commands)
        CommandWavePlayer(command);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
}

void Play(const std::string& tone) {
    SetWaveFile(QUIBLINK_TESTS "/samples/" + tone);
    Do({WaveCommand::Open, WaveCommand::Play});
}

const auto Shell = [](const char* command) {
    const int status = std::system(command);
    if (WIFSIGNALED(status))
        std::raise(WTERMSIG(status)); // Ctrl+C, which does not reach who waits for a command
    EXPECT_EQ(status, 0) << command;
};

void StartServer() {
    server = popen("DBUS_SESSION_BUS_ADDRESS=disabled: exec setpriv --pdeathsig KILL " SOUND_SERVER
                   " -n --log-level=error --exit-idle-time=30"
                   " -L 'module-null-sink sink_name=null'"
                   " -L 'module-native-protocol-unix auth-anonymous=1 socket='$PWD/server",
                   "r");
    Shell("until pactl info >/dev/null 2>&1; do sleep .01; done");
    monitor = popen("exec parec -d null.monitor --raw --latency-msec=20 2>/dev/null", "r");
}

// Whether a tenth of the next three seconds is loud, or silent.
bool Becomes(bool isLoud) {
    std::string heard(17'640, '\0');
    for (int i = 0; i < 30 && fread(heard.data(), heard.size(), 1, monitor) == 1; ++i)
        if ((heard.find_first_not_of('\0') != std::string::npos) == isLoud)
            return true;
    return false;
}

void PlayAndClose(const std::string& tone) {
    Play(tone);
    EXPECT_TRUE(Becomes(true)) << tone;
    Do({WaveCommand::Close});
    EXPECT_TRUE(Becomes(false)) << tone;
}

} // namespace

TEST(Sounds, AreHeardUntilClosedWhateverTheirServerDoes) {
    const char* tools =
        "(pactl --version && parec --version && " SOUND_SERVER " --version) >/dev/null";
    if (std::system(tools) != 0)
        GTEST_SKIP() << "There is no sound server.";
    const TestDirectory directory;
    PutBytes(".asoundrc", "pcm.!default pulse"); // whatever the desktop has ALSA lead to
    for (const char* name : {"HOME", "XDG_RUNTIME_DIR"})
        setenv(name, directory.Path.c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + directory.Path + "/server").c_str(), 1);
    SetWaveDeviceType("WaveAudio");
    Play("tone_8_bits.wav"); // to nobody
    StartServer();
    PlayAndClose("tone_24_bits.wav");

    Shell("pactl suspend-sink null 1");
    Play("tone_8_bits.wav");
    Shell("until pactl list sink-inputs | grep -q .; do sleep .01; done");
    Do({WaveCommand::Close});
    Shell(
        "while pactl list sink-inputs | grep -q .; do sleep .01; done; pactl suspend-sink null 0");

    Shell("kill -STOP $(cat pulse/pid); grep -c $PWD/server /proc/net/unix >connections");
    Play("tone_8_bits.wav");
    Shell("while grep -c $PWD/server /proc/net/unix | cmp -s connections; do sleep .01; done");
    Do({WaveCommand::Close});
    Shell("kill -CONT $(cat pulse/pid)");
    EXPECT_FALSE(Becomes(true)) << "played late";

    Play("tone_8_bits.wav");
    Shell("kill -KILL $(cat pulse/pid); rm pulse/pid server");
    StartServer();
    PlayAndClose("tone_8_bits.wav");
    Shell("kill -KILL $(cat pulse/pid); rm pulse/pid server");

    // The program ends while the next server is silent.
    const int door = socket(AF_UNIX, SOCK_STREAM, 0);
    const sockaddr_un address{AF_UNIX, "server"};
    bind(door, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(door, 1);
    Play("tone_8_bits.wav");
    EXPECT_GE(accept(door, nullptr, nullptr), 0);
}
