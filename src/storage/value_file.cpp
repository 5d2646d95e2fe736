#include "storage/value_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "base/files.h"
#include "base/text_encoding.h"

namespace {

// Bytes. What lies behind is never read: the largest game that the tables can hold needs less.
constexpr std::size_t LongestFile = 4'000'000;
constexpr std::size_t LongestText = 32'767;

constexpr const char* Separators = ",\r\n";
constexpr const char* LineEnd = "\r\n";

struct FileChannel {
    bool IsTaken = false;
    std::string Text;         // of the file that is being read
    std::size_t Position = 0; // of its next value
};

FileChannel channel1;

void TakeChannel(std::string text = {}) {
    channel1 = {true, std::move(text)};
}

void RequireFreeChannel() {
    if (channel1.IsTaken)
        throw std::runtime_error("file channel 1 is taken");
}

bool HasEnded() {
    return channel1.Position >= channel1.Text.size();
}

void SkipBlanks() {
    channel1.Position =
        std::min(channel1.Text.find_first_not_of(' ', channel1.Position), channel1.Text.size());
}

std::string_view TakeUpTo(const char* anyOfThese) {
    const std::size_t start = channel1.Position;
    channel1.Position =
        std::min(channel1.Text.find_first_of(anyOfThese, start), channel1.Text.size());
    return std::string_view(channel1.Text).substr(start, channel1.Position - start);
}

bool SkipOver(std::string_view expected) {
    if (channel1.Text.compare(channel1.Position, expected.size(), expected) != 0)
        return false;
    channel1.Position += expected.size();
    return true;
}

void BeginValue() {
    if (HasEnded())
        throw std::runtime_error("a file ends early");
    SkipBlanks();
}

// Drops what follows a closing quotation mark.
void EndValue() {
    TakeUpTo(Separators);
    if (!HasEnded() && !SkipOver(LineEnd))
        ++channel1.Position;
}

template <class Number>
void ReadNumber(Number& value) {
    BeginValue();
    std::string_view digits = TakeUpTo(Separators);
    EndValue();
    digits = digits.substr(0, digits.find_last_not_of(' ') + 1);
    const char* const end = digits.data() + digits.size();
    Number number{};
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc{} || stop != end)
        throw std::runtime_error("a file holds a value that is no number or does not fit");
    value = number;
}

void AppendLine(std::string& text, const std::string& line) {
    text += line;
    text += LineEnd;
}

} // namespace

void OpenForInput(const std::string& path) {
    std::optional<std::string> text = ReadRegularFile(path, LongestFile);
    if (!text)
        throw std::runtime_error("a file cannot be opened");
    OpenTextForInput(*std::move(text));
}

void OpenTextForInput(std::string text) {
    RequireFreeChannel();
    TakeChannel(std::move(text));
}

void ReadValue(Integer& value) {
    ReadNumber(value);
}

void ReadValue(std::int32_t& value) {
    ReadNumber(value);
}

void ReadValue(std::string& value) {
    BeginValue();
    // A quotation mark that is not closed ends with its line.
    const std::string_view bytes = TakeUpTo(SkipOver("\"") ? "\"\r\n" : Separators);
    if (bytes.size() > LongestText)
        throw std::runtime_error("a file holds a text that is longer than any name");
    value = DecodeFromFile(bytes);
    EndValue();
}

void ReadValue(bool& value) {
    std::string word;
    ReadValue(word);
    value = word == "True";
}

void AppendValue(std::string& text, std::int32_t value) {
    text += value < 0 ? "" : " ";
    AppendLine(text, std::to_string(value) + " ");
}

void AppendValue(std::string& text, const std::string& value) {
    AppendLine(text, EncodeForFile(value));
}

void AppendValue(std::string& text, bool value) {
    AppendLine(text, value ? "True" : "False");
}

void WriteFile(const std::string& path, const std::string& text) {
    RequireFreeChannel();
    FileReplacement file(path);
    TakeChannel();
    file.Write(text);
    CloseChannel();
}

void CloseChannel() {
    channel1 = {};
}
