// Files of tests: their bytes, and a directory for them.
#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

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

// An empty directory that is the current one while this lives. In memory where there is such a
// place: some tests write a hundred thousand files.
class TestDirectory {
public:
    TestDirectory() {
        const bool hasMemory = std::filesystem::is_directory("/dev/shm");
        Path = hasMemory ? "/dev/shm" : std::filesystem::temp_directory_path();
        Path += "/quiblink-XXXXXX";
        if (mkdtemp(Path.data()) == nullptr)
            throw std::runtime_error("no temporary directory");
        std::filesystem::current_path(Path);
    }
    ~TestDirectory() {
        std::filesystem::current_path(Before);
        std::filesystem::remove_all(Path);
    }
    TestDirectory(const TestDirectory&) = delete;
    TestDirectory& operator=(const TestDirectory&) = delete;

    std::string Path;

private:
    std::filesystem::path Before = std::filesystem::current_path();
};
