#include "ui/rich_text/rich_text.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "base/text_encoding.h"
#include "ui/rich_text/rich_text_builder.h"
#include "ui/rich_text/rtf_tokens.h"

namespace {

constexpr std::size_t MostGroups = 200;
constexpr std::size_t MostColors = 256;
constexpr std::size_t MostEdges = 32;
constexpr int LongestLength = 31680; // 22 inches, in twips
constexpr int LongestSpace = 2880;   // between paragraphs
constexpr int SmallestHalfPoints = 8;
constexpr int LargestHalfPoints = 144;

using Word = std::string_view;

const std::unordered_map<Word, char32_t> Characters = {
    {"tab", '\t'},         {"line", 0x2028},    {"bullet", 0x2022}, {"endash", 0x2013},
    {"emdash", 0x2014},    {"lquote", 0x2018},  {"rquote", 0x2019}, {"ldblquote", 0x201C},
    {"rdblquote", 0x201D}, {"enspace", 0x2002}, {"emspace", 0x2003}};

const std::unordered_map<Word, char32_t> SymbolCharacters = {
    {"\\", '\\'}, {"{", '{'}, {"}", '}'}, {"~", 0xA0}, {"_", 0x2011}, {"-", 0xAD}};

const std::unordered_map<Word, bool RichRunFormat::*> Switches = {{"b", &RichRunFormat::Bold},
                                                                  {"i", &RichRunFormat::Italic},
                                                                  {"ul", &RichRunFormat::Underline},
                                                                  {"v", &RichRunFormat::Hidden}};

using ParagraphLength = int RichParagraphFormat::*;
struct LengthWord {
    ParagraphLength Length;
    int Longest;
};

const std::unordered_map<Word, LengthWord> Lengths = {
    {"li", {&RichParagraphFormat::LeftIndent, LongestLength}},
    {"ri", {&RichParagraphFormat::RightIndent, LongestLength}},
    {"fi", {&RichParagraphFormat::FirstIndent, LongestLength}},
    {"sb", {&RichParagraphFormat::SpaceBefore, LongestSpace}},
    {"sa", {&RichParagraphFormat::SpaceAfter, LongestSpace}}};

const std::unordered_map<Word, RichAlignment> Alignments = {{"ql", RichAlignment::Left},
                                                            {"qc", RichAlignment::Center},
                                                            {"qr", RichAlignment::Right},
                                                            {"qj", RichAlignment::Justified}};

// Groups whose content is no text of the document; so is every group that opens with \*.
const std::unordered_set<Word> SkippedGroups = {
    "fonttbl", "stylesheet", "info",   "pict",    "object",  "header",      "headerl",
    "headerr", "headerf",    "footer", "footerl", "footerr", "footerf",     "footnote",
    "tc",      "xe",         "rxe",    "txe",     "fldinst", "nonesttables"};

enum class Destination { Text, Colors, Skipped };

// What a brace opens and its partner restores.
struct Group {
    Destination Into = Destination::Text;
    RichRunFormat Run;
    RichParagraphFormat Paragraph;
    bool IsInTable = false;
    int FallbackLength = 1; // of the text behind \u, for readers that know no Unicode
};

class Reader {
public:
    RichText Read(std::string_view rtf);

private:
    void Take(const RtfToken& token);
    void OpenGroup();
    void CloseGroup();
    void TakeContent(const RtfToken& token);
    void TakeWord(const RtfToken& word);
    void TakeSymbol(const RtfToken& symbol);
    void TakeText(std::string_view text);
    void FormatRun(const RtfToken& word);
    void FormatParagraph(const RtfToken& word);
    void Structure(const RtfToken& word);
    void TakeColorWord(const RtfToken& word);
    void EndColors(std::string_view text);
    void AddUnicode(int number);
    void Add(char32_t character);
    bool IsFallback();
    void Skip() { Groups.back().Into = Destination::Skipped; }

    std::vector<Group> Groups;
    std::size_t DeeperGroups = 0; // braces beyond the stack's end, whose content is skipped
    std::vector<std::optional<RichColor>> Colors;
    std::optional<RichColor> OpenColor;
    std::vector<int> RightEdges;
    char32_t HighSurrogate = 0;
    int FallbackLeft = 0;
    RichTextBuilder Builder;
};

RichText Reader::Read(std::string_view rtf) {
    if (!rtf.starts_with("{\\rtf") || rtf.size() > LargestRichText)
        return {};
    RtfTokens tokens(rtf);
    do {
        const RtfToken token = tokens.Next();
        if (token.What == RtfToken::Kind::End)
            return {}; // the document breaks off
        Take(token);
    } while (!Groups.empty());
    return Builder.Finish();
}

void Reader::Take(const RtfToken& token) {
    if (token.What == RtfToken::Kind::GroupStart)
        OpenGroup();
    else if (token.What == RtfToken::Kind::GroupEnd)
        CloseGroup();
    else if (DeeperGroups == 0)
        TakeContent(token);
}

void Reader::TakeContent(const RtfToken& token) {
    if (token.What == RtfToken::Kind::Text)
        return TakeText(token.Text);
    if (IsFallback())
        return;
    if (token.What == RtfToken::Kind::Word)
        TakeWord(token);
    else if (token.What == RtfToken::Kind::Symbol)
        TakeSymbol(token);
    else
        Add(FromWindows1252(static_cast<char>(token.Number)));
}

void Reader::OpenGroup() {
    FallbackLeft = 0;
    if (Groups.empty())
        Groups.emplace_back();
    else if (Groups.size() == MostGroups)
        ++DeeperGroups;
    else
        Groups.emplace_back(Groups.back());
}

void Reader::CloseGroup() {
    FallbackLeft = 0;
    if (DeeperGroups != 0)
        --DeeperGroups;
    else
        Groups.pop_back();
}

// Whether the next character or control stands in for a \u that was understood.
bool Reader::IsFallback() {
    if (FallbackLeft == 0)
        return false;
    --FallbackLeft;
    return true;
}

void Reader::Add(char32_t character) {
    const Group& group = Groups.back();
    if (group.Into != Destination::Text)
        return;
    if (Builder.ParagraphIsFull())
        Builder.EndParagraph(group.Paragraph, group.IsInTable);
    Builder.AddCharacter(character, group.Run);
}

void Reader::TakeText(std::string_view text) {
    if (Groups.back().Into == Destination::Colors)
        EndColors(text);
    for (const char c : text)
        if (!IsFallback())
            Add(FromWindows1252(c));
}

void Reader::TakeSymbol(const RtfToken& symbol) {
    const auto character = SymbolCharacters.find(symbol.Text);
    if (symbol.Text == "*")
        Skip();
    else if (character != SymbolCharacters.end())
        Add(character->second);
    else if (symbol.Text == "\n" || symbol.Text == "\r")
        Structure({.What = RtfToken::Kind::Word, .Text = "par"});
}

void Reader::TakeWord(const RtfToken& word) {
    if (Groups.back().Into == Destination::Skipped)
        return;
    if (Groups.back().Into == Destination::Colors)
        return TakeColorWord(word);
    if (const auto character = Characters.find(word.Text); character != Characters.end())
        return Add(character->second);
    if (SkippedGroups.contains(word.Text))
        return Skip();
    FormatRun(word);
    FormatParagraph(word);
    Structure(word);
}

void Reader::FormatRun(const RtfToken& word) {
    RichRunFormat& format = Groups.back().Run;
    if (const auto found = Switches.find(word.Text); found != Switches.end()) {
        format.*found->second = !word.HasNumber || word.Number != 0;
    } else if (word.Text == "ulnone") {
        format.Underline = false;
    } else if (word.Text == "plain") {
        format = {};
    } else if (word.Text == "fs") {
        format.HalfPoints = std::clamp(word.Number, SmallestHalfPoints, LargestHalfPoints);
    } else if (word.Text == "cf") {
        const bool isKnown = word.Number >= 0 && word.Number < static_cast<int>(Colors.size());
        format.Color = isKnown ? Colors.at(static_cast<std::size_t>(word.Number)) : std::nullopt;
    }
}

void Reader::FormatParagraph(const RtfToken& word) {
    Group& group = Groups.back();
    const auto length = Lengths.find(word.Text);
    const auto alignment = Alignments.find(word.Text);
    if (length != Lengths.end()) {
        const auto& [member, longest] = length->second;
        group.Paragraph.*member = std::clamp(word.Number, -longest, longest);
    } else if (alignment != Alignments.end()) {
        group.Paragraph.Alignment = alignment->second;
    } else if (word.Text == "pard") {
        group.Paragraph = {};
        group.IsInTable = false;
    } else if (word.Text == "intbl") {
        group.IsInTable = true;
    }
}

void Reader::Structure(const RtfToken& word) {
    const Group& group = Groups.back();
    if (group.Into != Destination::Text)
        return;
    if (word.Text == "par" || word.Text == "sect" || word.Text == "nestcell")
        Builder.EndParagraph(group.Paragraph, group.IsInTable);
    else if (word.Text == "cell")
        Builder.EndCell(group.Paragraph);
    else if (word.Text == "row")
        Builder.EndRow(RightEdges);
    else if (word.Text == "trowd")
        RightEdges.clear();
    else if (word.Text == "cellx" && RightEdges.size() < MostEdges)
        RightEdges.push_back(std::clamp(word.Number, 0, LongestLength));
    else if (word.Text == "u")
        AddUnicode(word.Number);
    else if (word.Text == "uc")
        Groups.back().FallbackLength = std::clamp(word.Number, 0, 16);
    else if (word.Text == "colortbl")
        Groups.back().Into = Destination::Colors;
}

void Reader::TakeColorWord(const RtfToken& word) {
    const auto part = static_cast<std::uint8_t>(std::clamp(word.Number, 0, 255));
    if (word.Text != "red" && word.Text != "green" && word.Text != "blue")
        return;
    if (!OpenColor)
        OpenColor = RichColor{};
    if (word.Text == "red")
        OpenColor->Red = part;
    else if (word.Text == "green")
        OpenColor->Green = part;
    else
        OpenColor->Blue = part;
}

// An entry of the table ends at its semicolon; one without a colour is the reader's own.
void Reader::EndColors(std::string_view text) {
    for (const char c : text)
        if (c == ';' && Colors.size() < MostColors)
            Colors.push_back(std::exchange(OpenColor, std::nullopt));
}

// Numbers are UTF-16 units, written as signed 16-bit integers.
void Reader::AddUnicode(int number) {
    const auto unit = static_cast<char32_t>(static_cast<std::uint16_t>(number));
    FallbackLeft = Groups.back().FallbackLength;
    if (unit >= 0xD800 && unit < 0xDC00) {
        HighSurrogate = unit;
        return;
    }
    const bool isLow = unit >= 0xDC00 && unit < 0xE000;
    if (isLow && HighSurrogate != 0)
        Add(0x10000 + ((HighSurrogate - 0xD800) << 10) + (unit - 0xDC00));
    else
        Add(isLow ? 0xFFFD : unit);
    HighSurrogate = 0;
}

} // namespace

RichText ReadRichText(std::string_view rtf) {
    return Reader().Read(rtf);
}
