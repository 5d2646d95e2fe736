// Gathers the runs, paragraphs, cells and rows of a document while it is read, and keeps it within
// bounds: what comes beyond them is dropped.
#pragma once

#include "ui/rich_text/rich_text.h"

class RichTextBuilder {
public:
    // Control characters other than a tab, and what is no character at all, are dropped.
    void AddCharacter(char32_t character, const RichRunFormat& format);

    void EndParagraph(const RichParagraphFormat& format, bool isInTable);
    void EndCell(const RichParagraphFormat& format);
    void EndRow(const std::vector<int>& rightEdges);

    // Ends what is still open and hands the document over.
    RichText Finish();

private:
    RichParagraph TakeParagraph(const RichParagraphFormat& format);
    bool HasRoom();

    RichText Document;
    RichParagraph OpenParagraph;
    RichCell OpenCell;
    RichRow OpenRow;
    std::size_t TextBytes = 0;
    int RunCount = 0;
    int PieceCount = 0;     // paragraphs, cells and rows
    bool IsInTable = false; // the last block is a table that a further row continues
};
