// The text files of the game: one value a line, each line ended by 13 10. Whatever is read or
// written goes through file channel 1, which one file holds at a time. A file that fails while it
// holds the channel keeps it, and every later opening fails, until `CloseChannel`.
#pragma once

#include <cstdint>
#include <string>

#include "base/integer.h"

// Takes the channel for reading the regular file `path`. Throws std::runtime_error, and takes
// nothing, when the channel is taken or there is no such file that may be read.
void OpenForInput(const std::string& path);

// Takes the channel for reading `text`, as if a file held it. Throws likewise when it is taken.
void OpenTextForInput(std::string text);

// The next value of the file that is being read; a value ends at a comma or a line end of any kind.
// Throw std::runtime_error when the file has ended, a number is none or does not fit, or a text is
// longer than any name.
void ReadValue(Integer& value);
void ReadValue(std::int32_t& value);
void ReadValue(std::string& value);
void ReadValue(bool& value); // true for the word "True" alone

// Appends a value as a line of a file.
void AppendValue(std::string& text, std::int32_t value);
void AppendValue(std::string& text, const std::string& value);
void AppendValue(std::string& text, bool value);

// Replaces the contents of the file by `text` in one piece. Throws std::runtime_error: before it
// takes the channel or touches a file, when the channel is taken or `path` cannot be written; with
// the channel taken, when the writing fails.
void WriteFile(const std::string& path, const std::string& text);

// Frees the channel.
void CloseChannel();
