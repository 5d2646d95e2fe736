// Between bytes and characters. In memory every text is UTF-8; a name in a file is Windows-1252
// where that holds it.
#pragma once

#include <string>
#include <string_view>

// Appends a character of Unicode.
void AppendUtf8(std::string& text, char32_t character);

// The character of a byte; the five bytes that Windows-1252 leaves open stand for themselves.
char32_t FromWindows1252(char byte);

// The bytes of a name in a file: Windows-1252 where those read back as the same text, else UTF-8.
std::string EncodeForFile(const std::string& text);

// The text of such bytes: UTF-8 where they are valid UTF-8, else Windows-1252. Never fails.
std::string DecodeFromFile(std::string_view bytes);
