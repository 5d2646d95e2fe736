#include "base/files.h"

#include <filesystem>

bool FileExists(const std::string& name) {
    std::error_code unreachable;
    return std::filesystem::is_regular_file(name, unreachable);
}
