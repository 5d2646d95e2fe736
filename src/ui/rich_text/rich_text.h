// Reads the help documents: RTF in, paragraphs of formatted runs and tables out. The reader is
// small and strict. It knows characters, colours, paragraphs and plain tables, skips the rest, and
// takes any bytes without harm.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

struct RichColor {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;
    bool operator==(const RichColor&) const = default;
};

struct RichRunFormat {
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Hidden = false;                           // never in a result
    std::optional<RichColor> Color = std::nullopt; // whatever colour text has where it is shown
    int HalfPoints = 24;
    bool operator==(const RichRunFormat&) const = default;
};

struct RichRun {
    std::string Text; // UTF-8; U+2028 breaks the line inside the paragraph
    RichRunFormat Format;
};

enum class RichAlignment { Left, Center, Right, Justified };

// Lengths in twips, a twentieth of a point.
struct RichParagraphFormat {
    RichAlignment Alignment = RichAlignment::Left;
    int LeftIndent = 0;
    int RightIndent = 0;
    int FirstIndent = 0; // of the first line, on top of LeftIndent; negative where a marker hangs
    int SpaceBefore = 0;
    int SpaceAfter = 0;
};

struct RichParagraph {
    RichParagraphFormat Format;
    std::vector<RichRun> Runs; // the marker of a list entry is text like any other
};

struct RichCell {
    std::vector<RichParagraph> Paragraphs;
};

struct RichRow {
    std::vector<RichCell> Cells;
    std::vector<int> RightEdges; // of the cells, in twips; may be fewer than there are cells
};

struct RichTable {
    std::vector<RichRow> Rows;
};

using RichBlock = std::variant<RichParagraph, RichTable>;
using RichText = std::vector<RichBlock>;

inline constexpr std::size_t LargestRichText = 1 << 20; // bytes

// Never fails: what is no RTF, breaks off before its end or is larger than that is an empty text. A
// text is cut where it would take long to lay out, behind some 65,000 letters or 2,700 paragraphs;
// a paragraph of more than 2,000 letters goes on in a further one.
RichText ReadRichText(std::string_view rtf);
