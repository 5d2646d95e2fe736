// Files of tests: their bytes, and a directory for them.
#pragma once

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

inline std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void PutBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// Acts while no file may grow beyond so many bytes, as on a disk that is full.
template <class Act>
void OnFullDisk(rlim_t bytes, Act act) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    act();
    setrlimit(RLIMIT_FSIZE, &before);
}

// No test sees anything of the desktop that it is started from.
inline const bool IsApart = [] {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
        variables.emplace_back(*variable, strcspn(*variable, "="));
    for (const std::string& name : variables)
        for (const char* start :
             {"DISPLAY", "WAYLAND_", "DBUS_", "AT_SPI_", "SESSION_", "XDG_", "PULSE_", "QT_"})
            if (name.starts_with(start))
                unsetenv(name.c_str());
    return true;
}();

// An empty directory that is the current one while this lives. In memory where there is such a
// place: some tests write a hundred thousand files. However the test ends, the directory goes.
class TestDirectory {
public:
    TestDirectory() {
        const bool hasMemory = std::filesystem::is_directory("/dev/shm");
        Path = hasMemory ? "/dev/shm" : std::filesystem::temp_directory_path();
        Path += "/quiblink-XXXXXX";
        int life[2];
        if (mkdtemp(Path.data()) == nullptr || pipe2(life, O_CLOEXEC) != 0)
            throw std::runtime_error("no temporary directory");
        Remover = fork();
        if (Remover == 0) {
            setsid(); // out of reach of Ctrl+C
            close(life[1]);
            [[maybe_unused]] const auto ended = read(life[0], life, 1);
            execlp("rm", "rm", "-rf", Path.c_str(), nullptr);
        }
        close(life[0]);
        Life = life[1];
        std::filesystem::current_path(Path);
    }
    ~TestDirectory() {
        std::filesystem::current_path(Before);
        close(Life);
        waitpid(Remover, nullptr, 0);
    }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    std::string Path;

private:
    std::filesystem::path Before = std::filesystem::current_path();
    pid_t Remover = 0;
    int Life = -1;
};
