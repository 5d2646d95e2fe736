// Gathers the runs, paragraphs, cells and rows of a document while it is read, and keeps it within
// bounds: what comes beyond them is dropped.
#pragma once

#include "ui/rich_text/rich_text.h"

class RichTextBuilder {
public:
    // Control characters other than a tab, and what is no character at all, are dropped.
    void AddCharacter(char32_t character, const RichRunFormat& format);

    // Whether a paragraph must end before there is a further character: very long ones cost too
    // much.
    bool ParagraphIsFull() const;

    void EndParagraph(const RichParagraphFormat& format, bool isInTable);
    void EndCell(const RichParagraphFormat& format);
    void EndRow(const std::vector<int>& rightEdges);

    // Ends what is still open and hands the document over.
    RichText Finish();

private:
    RichParagraph TakeParagraph(const RichParagraphFormat& format);
    bool Affords(int cost);
    bool AffordsPieces(std::size_t count); // paragraphs, cells and rows

    RichText Document;
    RichParagraph OpenParagraph;
    RichCell OpenCell;
    RichRow OpenRow;
    int Cost = 0;     // of all
    int OpenCost = 0; // of the open paragraph
    std::size_t TableColumns = 0;
    bool IsInTable = false; // the last block is a table that a further row continues
};
