#include "base/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int AlwaysWith = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

struct stat StatusOf(const OpenFile& file) {
    struct stat status = {};
    (void)fstat(file.Descriptor, &status);
    return status;
}

// Closed when there is no such regular file that may be opened like this.
OpenFile OpenRegular(const std::string& name, int flags) {
    if (!FileExists(name))
        return {};
    OpenFile file(open(name.c_str(), flags | AlwaysWith));
    // What stood under the name may have been exchanged meanwhile.
    return S_ISREG(StatusOf(file).st_mode) ? std::move(file) : OpenFile();
}

// The system does not follow the links that others leave in a directory for all, nor too many: who
// follows them by hand writes where others want, or without end.
bool IsForbiddenLink(const std::filesystem::path& name) {
    std::error_code unreachable;
    return std::filesystem::status(name, unreachable).type() == std::filesystem::file_type::none &&
           std::filesystem::is_symlink(name, unreachable);
}

// What a link leads to, and the links behind it, whether or not there is such a file yet.
std::string FollowLinks(std::filesystem::path name) {
    std::error_code unreachable;
    while (std::filesystem::is_symlink(name, unreachable) && !IsForbiddenLink(name))
        name = name.parent_path() / std::filesystem::read_symlink(name, unreachable);
    return name.string();
}

bool IsThere(const std::string& name) {
    std::error_code unreachable;
    return std::filesystem::symlink_status(name, unreachable).type() !=
           std::filesystem::file_type::not_found;
}

// Hidden, and no game by its ending.
std::string NameBeside(const std::string& name, int number) {
    const std::string own = ".quiblink-" + std::to_string(number) + ".new";
    return (std::filesystem::path(name).parent_path() / own).string();
}

// Whoever writes a new file holds its lock. Systems without locks let everybody.
bool TakeLock(const OpenFile& file) {
    return flock(file.Descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool IsStillNamed(const OpenFile& file, const std::string& name) {
    const struct stat own = StatusOf(file);
    struct stat named = {};
    return lstat(name.c_str(), &named) == 0 && own.st_dev == named.st_dev &&
           own.st_ino == named.st_ino;
}

// A new file whose lock nobody holds is what is left of a program that was killed.
void RemoveIfLeftBehind(const std::string& name) {
    const OpenFile file = OpenRegular(name, O_WRONLY | O_NOFOLLOW);
    if (file.IsOpen() && flock(file.Descriptor, LOCK_EX | LOCK_NB) == 0 && IsStillNamed(file, name))
        unlink(name.c_str());
}

void KeepModeAndOwner(const OpenFile& from, const OpenFile& to) {
    const struct stat status = StatusOf(from);
    (void)!fchown(to.Descriptor, StatusOf(to).st_uid, status.st_gid); // the group, as more may
    (void)!fchown(to.Descriptor, status.st_uid, status.st_gid);
    (void)fchmod(to.Descriptor, status.st_mode & 07777);
}

void WriteToDisk(const OpenFile& file, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = write(file.Descriptor, text.data(), text.size());
        if (count <= 0)
            throw std::runtime_error("a file cannot be written");
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    if (fsync(file.Descriptor) != 0)
        throw std::runtime_error("a file does not reach the disk");
}

// Space comes first, so that a full disk leaves the old text as it is.
void WriteOver(const OpenFile& file, const std::string& text) {
    if (!TakeLock(file))
        throw std::runtime_error("a file is being written by another");
    const off_t before = StatusOf(file).st_size;
    const auto after = static_cast<off_t>(text.size());
    if (after > before && posix_fallocate(file.Descriptor, before, after - before) != 0) {
        (void)!ftruncate(file.Descriptor, before);
        throw std::runtime_error("a file finds no space");
    }
    WriteToDisk(file, text);
    if (ftruncate(file.Descriptor, after) != 0 || fsync(file.Descriptor) != 0)
        throw std::runtime_error("a file cannot be cut");
}

// Not every directory can be brought to the disk, or even be opened.
void SyncDirectoryOf(const std::string& name) {
    const std::filesystem::path directory = std::filesystem::path(name).parent_path();
    const OpenFile file(
        open(directory.empty() ? "." : directory.c_str(), O_DIRECTORY | AlwaysWith));
    if (file.IsOpen() && fsync(file.Descriptor) != 0 && errno == EIO)
        throw std::runtime_error("a directory does not reach the disk");
}

} // namespace

OpenFile::OpenFile(OpenFile&& other) noexcept {
    std::swap(Descriptor, other.Descriptor);
}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
    std::swap(Descriptor, other.Descriptor);
    return *this;
}

OpenFile::~OpenFile() {
    if (IsOpen())
        close(Descriptor);
}

bool FileExists(const std::string& name) {
    std::error_code unreachable;
    return std::filesystem::is_regular_file(name, unreachable);
}

std::optional<std::string> ReadRegularFile(const std::string& name, std::size_t atMostBytes) {
    const OpenFile file = OpenRegular(name, O_RDONLY);
    if (!file.IsOpen())
        return std::nullopt;
    std::string bytes;
    for (;;) {
        std::array<char, 1 << 16> next;
        const ssize_t count =
            read(file.Descriptor, next.data(), std::min(next.size(), atMostBytes - bytes.size()));
        if (count <= 0)
            return bytes;
        bytes.append(next.data(), static_cast<std::size_t>(count));
    }
}

FileReplacement::FileReplacement(const std::string& name)
    : Name(FollowLinks(name)), Old(OpenRegular(Name, O_WRONLY)) {
    if (Name.empty() || IsForbiddenLink(name) || (!Old.IsOpen() && IsThere(Name)))
        throw std::runtime_error("a file may not be written");
    CreateNew();
    if (!Old.IsOpen() && !New.IsOpen())
        throw std::runtime_error("a file cannot be made");
    if (Old.IsOpen())
        KeepModeAndOwner(Old, New);
}

FileReplacement::~FileReplacement() {
    if (!NewName.empty())
        unlink(NewName.c_str());
}

void FileReplacement::CreateNew() {
    constexpr int mostAtOnce = 20; // copies of the game that save into one directory
    constexpr mode_t modeBeforeMask = 0666;
    for (int number = 0; number < mostAtOnce; ++number)
        RemoveIfLeftBehind(NameBeside(Name, number));
    for (int number = 0; number < mostAtOnce; ++number) {
        const std::string name = NameBeside(Name, number);
        OpenFile file(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | AlwaysWith, modeBeforeMask));
        // Before it was locked another may have taken it for left behind.
        if (file.IsOpen() && TakeLock(file) && IsStillNamed(file, name)) {
            New = std::move(file);
            NewName = name;
            return;
        }
    }
}

void FileReplacement::Write(const std::string& text) {
    if (New.IsOpen()) {
        WriteToDisk(New, text);
        if (rename(NewName.c_str(), Name.c_str()) == 0) {
            NewName.clear();
            return SyncDirectoryOf(Name);
        }
    }
    if (!Old.IsOpen())
        throw std::runtime_error("a file cannot be given its name");
    WriteOver(Old, text);
}
