// Files of tests: their bytes, and a directory of their own to be the current one.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

inline std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

inline void PutBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// In memory where there is such a place: some tests write a hundred thousand files.
class TemporaryDirectory {
public:
    TemporaryDirectory() {
        const bool hasMemory = std::filesystem::is_directory("/dev/shm");
        Path = hasMemory ? "/dev/shm" : std::filesystem::temp_directory_path();
        Path += "/quiblink-XXXXXX";
        if (mkdtemp(Path.data()) == nullptr)
            throw std::runtime_error("no temporary directory");
    }
    ~TemporaryDirectory() { std::filesystem::remove_all(Path); }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    std::string Path;
};

class CurrentDirectory {
public:
    explicit CurrentDirectory(const std::string& path) { std::filesystem::current_path(path); }
    ~CurrentDirectory() { std::filesystem::current_path(Before); }
    CurrentDirectory(const CurrentDirectory&) = delete;
    CurrentDirectory& operator=(const CurrentDirectory&) = delete;

private:
    std::filesystem::path Before = std::filesystem::current_path();
};

// Cuts `sample` short at every place and puts every byte in every place. Tells the first result
// that `isHarmless` refuses, "" when there is none.
template <class Predicate>
std::string FirstHarmfulDamage(const std::string& sample, Predicate isHarmless) {
    for (std::size_t place = 0; place < sample.size(); ++place) {
        std::string damaged = sample.substr(0, place);
        if (!isHarmless(damaged))
            return damaged;
        damaged = sample;
        for (int byte = 0; byte < 256; ++byte) {
            damaged.at(place) = static_cast<char>(byte);
            if (!isHarmless(damaged))
                return damaged;
        }
    }
    return "";
}
