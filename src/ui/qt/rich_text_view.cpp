#include "ui/qt/rich_text_view.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <utility>

namespace {

constexpr double TwipsPerUnit = 15; // a document counts in 96ths of an inch
constexpr double UsualPoints = 11;  // of the letters of a document
constexpr int CellPadding = 5;
constexpr int SpaceBelowTable = 12;      // the space before the next paragraph does not count there
const QColor TableBorder(128, 128, 128); // shows on light and on dark

Qt::Alignment ToAlignment(RichAlignment alignment) {
    switch (alignment) {
    case RichAlignment::Center:
        return Qt::AlignHCenter;
    case RichAlignment::Right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case RichAlignment::Justified:
        return Qt::AlignJustify;
    case RichAlignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignAbsolute;
}

QTextBlockFormat ToBlockFormat(const RichParagraphFormat& format) {
    const double units = Enlargement() / TwipsPerUnit;
    QTextBlockFormat block;
    block.setAlignment(ToAlignment(format.Alignment));
    block.setLeftMargin(std::max(format.LeftIndent, 0) * units);
    block.setRightMargin(std::max(format.RightIndent, 0) * units);
    block.setTextIndent(format.FirstIndent * units);
    block.setTopMargin(std::max(format.SpaceBefore, 0) * units);
    block.setBottomMargin(std::max(format.SpaceAfter, 0) * units);
    if (format.FirstIndent < 0) // the text behind a hanging marker lines up with the lines below
        block.setTabPositions(
            {QTextOption::Tab(-format.FirstIndent * units, QTextOption::LeftTab)});
    return block;
}

QTextCharFormat ToCharFormat(const RichRunFormat& format) {
    QTextCharFormat characters;
    characters.setFontPointSize(format.HalfPoints / 2.0 * Enlargement());
    characters.setFontWeight(format.Bold ? QFont::Bold : QFont::Normal);
    characters.setFontItalic(format.Italic);
    characters.setFontUnderline(format.Underline);
    // Without glyphs of other fonts: to look those up takes a tenth of a second for each size.
    characters.setFontStyleStrategy(QFont::NoFontMerging);
    if (format.Color)
        characters.setForeground(
            QColor(format.Color->Red, format.Color->Green, format.Color->Blue));
    return characters;
}

void InsertRuns(QTextCursor& cursor, const RichParagraph& paragraph) {
    cursor.setBlockFormat(ToBlockFormat(paragraph.Format));
    for (const RichRun& run : paragraph.Runs)
        cursor.insertText(QString::fromStdString(run.Text), ToCharFormat(run.Format));
}

void FillCell(QTextCursor cursor, const RichCell& cell) {
    bool isFirst = true;
    for (const RichParagraph& paragraph : cell.Paragraphs) {
        if (!std::exchange(isFirst, false))
            cursor.insertBlock();
        InsertRuns(cursor, paragraph);
    }
}

std::size_t ColumnCount(const RichTable& table) {
    std::size_t columns = 0;
    for (const RichRow& row : table.Rows)
        columns = std::max(columns, row.Cells.size());
    return columns;
}

// The shares of the width that the first row asks for, where it asks for all of them.
QList<QTextLength> ColumnWidths(const RichTable& table, std::size_t columns) {
    const std::vector<int>& edges = table.Rows.front().RightEdges;
    if (edges.size() < columns || !std::is_sorted(edges.begin(), edges.end()))
        return {};
    const double whole = edges.at(columns - 1);
    QList<QTextLength> widths;
    int left = 0;
    for (std::size_t column = 0; column < columns && whole > 0; ++column) {
        const int right = edges.at(column);
        widths.append(QTextLength(QTextLength::PercentageLength, 100 * (right - left) / whole));
        left = right;
    }
    return widths;
}

void InsertTable(QTextCursor& cursor, const RichTable& table) {
    const std::size_t columns = ColumnCount(table);
    QTextTableFormat format;
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorder(1);
    format.setBorderBrush(TableBorder);
    format.setBorderCollapse(true);
    format.setCellPadding(CellPadding);
    format.setBottomMargin(SpaceBelowTable);
    format.setColumnWidthConstraints(ColumnWidths(table, columns));
    QTextTable* const shown =
        cursor.insertTable(static_cast<int>(table.Rows.size()), static_cast<int>(columns), format);
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
        const std::vector<RichCell>& cells = table.Rows.at(row).Cells;
        for (std::size_t column = 0; column < cells.size(); ++column)
            FillCell(shown->cellAt(static_cast<int>(row), static_cast<int>(column))
                         .firstCursorPosition(),
                     cells.at(column));
    }
    cursor.movePosition(QTextCursor::End);
}

} // namespace

double Enlargement() {
    return std::max(1.0, QFont().pointSizeF() / UsualPoints);
}

void ShowRichText(const RichText& text, QTextDocument& document) {
    document.clear();
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    bool isBlockFree = true; // an empty block stands at the start and behind every table
    for (const RichBlock& block : text) {
        if (const auto* table = std::get_if<RichTable>(&block)) {
            InsertTable(cursor, *table);
            isBlockFree = true;
            continue;
        }
        if (!std::exchange(isBlockFree, false))
            cursor.insertBlock();
        InsertRuns(cursor, std::get<RichParagraph>(block));
    }
    cursor.endEditBlock();
}
