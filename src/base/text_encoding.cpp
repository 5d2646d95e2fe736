#include "base/text_encoding.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

// Windows-1252 from 0x80 to 0x9F; the five codes that it leaves open stand for themselves. All
// other bytes are the first 256 characters of Unicode.
constexpr int FirstSpecial = 0x80;
constexpr std::array<char32_t, 32> SpecialCharacters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool IsSpecial(char32_t code) {
    return code >= FirstSpecial && code < FirstSpecial + SpecialCharacters.size();
}

std::optional<char> ToWindows1252(char32_t character) {
    const auto* const special =
        std::find(SpecialCharacters.begin(), SpecialCharacters.end(), character);
    if (special != SpecialCharacters.end())
        return static_cast<char>(FirstSpecial + (special - SpecialCharacters.begin()));
    if (character > 0xFF || IsSpecial(character))
        return std::nullopt;
    return static_cast<char>(character);
}

// Bytes of the character that a first byte begins, 0 = none.
int Utf8Length(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

// Takes the first character off valid UTF-8; nothing when it does not begin with one.
std::optional<char32_t> TakeUtf8(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const int length = Utf8Length(first);
    if (length == 0 || text.size() < static_cast<std::size_t>(length))
        return std::nullopt;
    char32_t character = length == 1 ? first : first & (0xFF >> (length + 1));
    for (const char byte : text.substr(1, static_cast<std::size_t>(length) - 1)) {
        if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80)
            return std::nullopt;
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3F);
    }
    const bool isTooLong =
        (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    if (isTooLong || isSurrogate || character > 0x10FFFF)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(length));
    return character;
}

bool IsUtf8(std::string_view text) {
    while (!text.empty())
        if (!TakeUtf8(text))
            return false;
    return true;
}

} // namespace

void AppendUtf8(std::string& text, char32_t character) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto appendLow6Bits = [&](char32_t bits) { append(0x80 | (bits & 0x3F)); };
    if (character < 0x80) {
        append(character);
        return;
    }
    if (character < 0x800) {
        append(0xC0 | (character >> 6));
    } else {
        if (character < 0x10000) {
            append(0xE0 | (character >> 12));
        } else {
            append(0xF0 | (character >> 18));
            appendLow6Bits(character >> 12);
        }
        appendLow6Bits(character >> 6);
    }
    appendLow6Bits(character);
}

char32_t FromWindows1252(char byte) {
    const char32_t code = static_cast<unsigned char>(byte);
    return IsSpecial(code) ? SpecialCharacters.at(code - FirstSpecial) : code;
}

std::string EncodeForFile(const std::string& text) {
    std::string bytes;
    for (std::string_view rest = text; !rest.empty();) {
        const std::optional<char32_t> character = TakeUtf8(rest);
        const std::optional<char> byte = character ? ToWindows1252(*character) : std::nullopt;
        if (!byte)
            return text;
        bytes += *byte;
    }
    // A few odd names would be taken for UTF-8 when they are read back.
    return IsUtf8(bytes) ? text : bytes;
}

std::string DecodeFromFile(std::string_view bytes) {
    if (IsUtf8(bytes))
        return std::string(bytes);
    std::string text;
    for (const char byte : bytes)
        AppendUtf8(text, FromWindows1252(byte));
    return text;
}
