#include "ui/rich_text/rtf_tokens.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace {

constexpr int LargestNumber = 1000000;

// Not those of the locale.
bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::string_view RtfTokens::Take(std::size_t length) {
    const std::string_view taken = Rest.substr(0, length);
    Rest.remove_prefix(taken.size());
    return taken;
}

RtfToken RtfTokens::Next() {
    using enum RtfToken::Kind;
    Rest.remove_prefix(std::min(Rest.find_first_not_of("\r\n"), Rest.size()));
    if (Rest.empty())
        return {};
    switch (Rest.front()) {
    case '{':
        return {.What = GroupStart, .Text = Take(1)};
    case '}':
        return {.What = GroupEnd, .Text = Take(1)};
    case '\\':
        Take(1);
        return TakeControl();
    default:
        return {.What = Text, .Text = Take(Rest.find_first_of("\\{}\r\n"))};
    }
}

RtfToken RtfTokens::TakeControl() {
    if (Rest.empty())
        return {};
    if (IsLetter(Rest.front()))
        return TakeWord();
    const RtfToken symbol{.What = RtfToken::Kind::Symbol, .Text = Take(1)};
    return symbol.Text == "'" ? TakeHexByte() : symbol;
}

RtfToken RtfTokens::TakeWord() {
    const auto letters = std::find_if_not(Rest.begin(), Rest.end(), IsLetter) - Rest.begin();
    RtfToken word{.What = RtfToken::Kind::Word, .Text = Take(static_cast<std::size_t>(letters))};
    TakeNumber(word);
    if (Rest.starts_with(' '))
        Take(1);
    if (word.Text == "bin" && word.Number > 0)
        Take(static_cast<std::size_t>(word.Number));
    return word;
}

void RtfTokens::TakeNumber(RtfToken& word) {
    const bool isNegative = Rest.size() > 1 && Rest.front() == '-' && IsDigit(Rest.at(1));
    if (isNegative)
        Take(1);
    while (!Rest.empty() && IsDigit(Rest.front())) {
        word.HasNumber = true;
        word.Number = std::min(word.Number * 10 + (Take(1).front() - '0'), LargestNumber);
    }
    if (isNegative)
        word.Number = -word.Number;
}

RtfToken RtfTokens::TakeHexByte() {
    std::uint8_t byte = 0;
    const char* const end = Rest.data() + std::min<std::size_t>(Rest.size(), 2);
    if (std::from_chars(Rest.data(), end, byte, 16).ptr != end)
        return {.What = RtfToken::Kind::Symbol, .Text = "'"};
    return {.What = RtfToken::Kind::HexByte, .Text = Take(2), .Number = byte};
}
