// Files of the system, as far as the game needs them. Only regular files are ever opened: a pipe, a
// socket or a device in the place of one could hold the program up for good.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

// Whether `name`, looked up from the current directory, is a regular file that can be asked for.
// A directory or a dangling link is not one.
bool FileExists(const std::string& name);

// The first bytes of a regular file, `atMostBytes` of them, or what of them can be read; nothing if
// there is no such file that may be read.
std::optional<std::string> ReadRegularFile(const std::string& name, std::size_t atMostBytes);

// A file that is open as long as this lives.
class OpenFile {
public:
    OpenFile() = default;
    explicit OpenFile(int descriptor) : Descriptor(descriptor) {}
    OpenFile(OpenFile&& other) noexcept;
    OpenFile& operator=(OpenFile&& other) noexcept;
    ~OpenFile();

    bool IsOpen() const { return Descriptor >= 0; }

    int Descriptor = -1;
};

// Puts a new text in the place of a file, or makes the file. The text goes into a file beside the
// old one and takes its place when all of it is on the disk, so that at every moment one of the two
// is whole. Links are followed where the system follows them; the new file takes over the mode and,
// where it may, the owner. Where the directory lets nothing take that place the old file is written
// over.
class FileReplacement {
public:
    // Throws std::runtime_error, with nothing changed, when `name` cannot be written.
    explicit FileReplacement(const std::string& name);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    // Called once. Throws std::runtime_error when the disk fails or is full, or when the name is
    // taken meanwhile by what is no file.
    void Write(const std::string& text);

private:
    void CreateNew();

    std::string Name;
    std::string NewName; // empty when nothing of that name is to be removed
    OpenFile Old;        // closed when there is none
    OpenFile New;        // closed when the directory takes no new file; else locked
};
