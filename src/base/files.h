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
