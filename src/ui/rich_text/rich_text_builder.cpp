#include "ui/rich_text/rich_text_builder.h"

#include <utility>

#include "base/text_encoding.h"

namespace {

constexpr std::size_t MostTextBytes = 1 << 20;
constexpr int MostRuns = 20000;
constexpr int MostPieces = 5000;
constexpr std::size_t MostColumns = 32;

bool IsText(char32_t character) {
    const bool isControl =
        (character < 0x20 && character != '\t') || (character >= 0x7F && character < 0xA0);
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    return !isControl && !isSurrogate && character <= 0x10FFFF;
}

} // namespace

void RichTextBuilder::AddCharacter(char32_t character, const RichRunFormat& format) {
    if (!IsText(character) || format.Hidden || TextBytes >= MostTextBytes)
        return;
    if (OpenParagraph.Runs.empty() || OpenParagraph.Runs.back().Format != format) {
        if (RunCount == MostRuns)
            return;
        ++RunCount;
        OpenParagraph.Runs.push_back({.Text = {}, .Format = format});
    }
    std::string& text = OpenParagraph.Runs.back().Text;
    const std::size_t before = text.size();
    AppendUtf8(text, character);
    TextBytes += text.size() - before;
}

bool RichTextBuilder::HasRoom() {
    return PieceCount++ < MostPieces;
}

RichParagraph RichTextBuilder::TakeParagraph(const RichParagraphFormat& format) {
    RichParagraph taken = std::exchange(OpenParagraph, {});
    taken.Format = format;
    return taken;
}

void RichTextBuilder::EndParagraph(const RichParagraphFormat& format, bool isInTable) {
    RichParagraph paragraph = TakeParagraph(format);
    if (!isInTable)
        EndRow({}); // a row that was left open
    if (!HasRoom())
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
    if (OpenRow.Cells.size() < MostColumns && HasRoom())
        OpenRow.Cells.push_back(std::move(cell));
}

void RichTextBuilder::EndRow(const std::vector<int>& rightEdges) {
    if (!OpenParagraph.Runs.empty() || !OpenCell.Paragraphs.empty())
        EndCell({});
    RichRow row = std::exchange(OpenRow, {});
    if (row.Cells.empty() || !HasRoom())
        return;
    row.RightEdges = rightEdges;
    if (!IsInTable)
        Document.emplace_back(RichTable{});
    IsInTable = true;
    std::get<RichTable>(Document.back()).Rows.push_back(std::move(row));
}

RichText RichTextBuilder::Finish() {
    if (!OpenParagraph.Runs.empty())
        EndParagraph({}, !OpenRow.Cells.empty());
    EndRow({});
    return std::move(Document);
}
