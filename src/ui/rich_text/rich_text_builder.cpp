#include "ui/rich_text/rich_text_builder.h"

#include <algorithm>
#include <utility>

#include "base/text_encoding.h"

namespace {

// What a text may cost to lay out, in letters of reading size. Whatever begins an item of its own
// in a line is dear: within a paragraph the work grows with the square of their number.
constexpr int ReadingSize = 24; // half points; smaller letters cost as much
constexpr int MostCost = 65536 * ReadingSize;
constexpr int LongestParagraph = 2000;
constexpr int CostOfForeign = 8; // a letter beyond Latin: it may turn direction, script and font
constexpr int CostOfTab = 16;
constexpr int CostOfRun = 8;
constexpr int CostOfPiece = 24; // a paragraph, a cell or a row
constexpr std::size_t MostColumns = 8;

constexpr char32_t BeyondLatin = 0x250;

int CostOf(char32_t character) {
    return character == '\t' ? CostOfTab : character < BeyondLatin ? 1 : CostOfForeign;
}

// Not those by which toolkits mark the structure of a text, nor those that turn its direction.
bool IsText(char32_t character) {
    const auto isIn = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    const bool isControl = (character < 0x20 && character != '\t') || isIn(0x7F, 0x9F);
    const bool isMark =
        isIn(0x202A, 0x202E) || isIn(0x2066, 0x2069) || character == 0x2029 || character == 0xFFFC;
    const bool isNone = isIn(0xFDD0, 0xFDEF) || (character & 0xFFFE) == 0xFFFE;
    return !isControl && !isMark && !isNone;
}

} // namespace

void RichTextBuilder::AddCharacter(char32_t character, const RichRunFormat& format) {
    if (!IsText(character) || format.Hidden)
        return;
    const bool isNewRun = OpenParagraph.Runs.empty() || OpenParagraph.Runs.back().Format != format;
    const int cost = CostOf(character) + (isNewRun ? CostOfRun : 0);
    if (!Affords(cost * std::max(format.HalfPoints, ReadingSize)))
        return;
    OpenCost += cost;
    if (isNewRun)
        OpenParagraph.Runs.push_back({.Text = {}, .Format = format});
    AppendUtf8(OpenParagraph.Runs.back().Text, character);
}

bool RichTextBuilder::ParagraphIsFull() const {
    return OpenCost >= LongestParagraph;
}

// What does not fit any more ends the text. Pieces that hold some are still finished.
bool RichTextBuilder::Affords(int cost) {
    const bool isAfforded = Cost + cost <= MostCost;
    Cost = isAfforded ? Cost + cost : MostCost;
    return isAfforded;
}

bool RichTextBuilder::AffordsPieces(std::size_t count) {
    return Affords(static_cast<int>(count) * CostOfPiece * ReadingSize);
}

RichParagraph RichTextBuilder::TakeParagraph(const RichParagraphFormat& format) {
    RichParagraph taken = std::exchange(OpenParagraph, {});
    taken.Format = format;
    OpenCost = 0;
    return taken;
}

void RichTextBuilder::EndParagraph(const RichParagraphFormat& format, bool isInTable) {
    RichParagraph paragraph = TakeParagraph(format);
    if (!isInTable)
        EndRow({}); // a row that was left open
    if (!AffordsPieces(1) && paragraph.Runs.empty())
        return;
    if (isInTable) {
        OpenCell.Paragraphs.push_back(std::move(paragraph));
    } else {
        Document.emplace_back(std::move(paragraph));
        IsInTable = false;
    }
}

void RichTextBuilder::EndCell(const RichParagraphFormat& format) {
    if (!OpenParagraph.Runs.empty())
        EndParagraph(format, true);
    RichCell cell = std::exchange(OpenCell, {});
    const bool isKept = AffordsPieces(1) || !cell.Paragraphs.empty();
    if (isKept && OpenRow.Cells.size() < MostColumns)
        OpenRow.Cells.push_back(std::move(cell));
}

void RichTextBuilder::EndRow(const std::vector<int>& rightEdges) {
    if (!OpenParagraph.Runs.empty() || !OpenCell.Paragraphs.empty())
        EndCell({});
    RichRow row = std::exchange(OpenRow, {});
    if (row.Cells.empty())
        return;
    const bool goesOn = IsInTable && row.Cells.size() <= TableColumns;
    const std::size_t columns = goesOn ? TableColumns : row.Cells.size();
    AffordsPieces(1 + columns - row.Cells.size()); // with the empty cells that fill it up
    row.RightEdges = rightEdges;
    if (!goesOn)
        Document.emplace_back(RichTable{});
    IsInTable = true;
    TableColumns = columns;
    std::get<RichTable>(Document.back()).Rows.push_back(std::move(row));
}

RichText RichTextBuilder::Finish() {
    if (!OpenParagraph.Runs.empty())
        EndParagraph({}, !OpenRow.Cells.empty());
    EndRow({});
    return std::move(Document);
}
