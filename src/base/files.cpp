#include "base/files.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsRegular(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// A file that is open as long as this lives.
class OpenFile {
public:
    OpenFile(const std::string& name, int flags)
        : Descriptor(open(name.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {}
    ~OpenFile() {
        if (Descriptor >= 0)
            close(Descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    const int Descriptor; // negative: it could not be opened
};

} // namespace

bool FileExists(const std::string& name) {
    std::error_code unreachable;
    return std::filesystem::is_regular_file(name, unreachable);
}

std::optional<std::string> ReadRegularFile(const std::string& name, std::size_t atMostBytes) {
    if (!FileExists(name))
        return std::nullopt;
    const OpenFile file(name, O_RDONLY);
    // What stood under the name may have been exchanged meanwhile.
    if (!IsRegular(file.Descriptor))
        return std::nullopt;
    constexpr std::size_t step = 1 << 16;
    std::string bytes;
    std::size_t length = 0;
    while (length < atMostBytes) {
        bytes.resize(std::min(length + step, atMostBytes));
        const ssize_t count = read(file.Descriptor, bytes.data() + length, bytes.size() - length);
        if (count <= 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}
