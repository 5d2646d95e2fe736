// Cuts RTF bytes into braces, control words, control symbols and stretches of text.
#pragma once

#include <string_view>

struct RtfToken {
    enum class Kind { End, GroupStart, GroupEnd, Word, Symbol, HexByte, Text };

    Kind What = Kind::End;
    std::string_view Text; // a word's letters, a symbol's one character, or plain text
    bool HasNumber = false;
    int Number = 0; // of a word, clamped to +-1,000,000; of a HexByte, 0 to 255
};

class RtfTokens {
public:
    explicit RtfTokens(std::string_view rtf) : Rest(rtf) {}

    // Line ends between tokens and the data of \bin are passed over.
    RtfToken Next();

private:
    RtfToken TakeControl();
    RtfToken TakeWord();
    RtfToken TakeHexByte();
    void TakeNumber(RtfToken& word);
    std::string_view Take(std::size_t length);

    std::string_view Rest;
};
