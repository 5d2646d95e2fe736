#pragma once

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <random>
#include <string>

// Empty files of these names in a directory of their own, which is the current one meanwhile.
class SoundFiles {
public:
    SoundFiles(std::initializer_list<const char*> names) {
        std::filesystem::create_directory(Directory);
        std::filesystem::current_path(Directory);
        for (const char* name : names)
            std::ofstream{name};
    }
    ~SoundFiles() {
        std::filesystem::current_path(Before);
        std::filesystem::remove_all(Directory);
    }
    SoundFiles(const SoundFiles&) = delete;
    SoundFiles& operator=(const SoundFiles&) = delete;

private:
    std::filesystem::path Before = std::filesystem::current_path();
    std::filesystem::path Directory = std::filesystem::temp_directory_path() /
                                      ("quiblink-" + std::to_string(std::random_device{}()));
};
