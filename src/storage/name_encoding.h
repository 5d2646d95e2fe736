// How the characters of a name are kept in a file. In memory every text is UTF-8.
#pragma once

#include <string>
#include <string_view>

// The bytes of `text` in a file: Windows-1252 where those read back as the same text, else UTF-8.
std::string EncodeForFile(const std::string& text);

// The text of such bytes: UTF-8 where they are valid UTF-8, else Windows-1252. Never fails.
std::string DecodeFromFile(std::string_view bytes);
