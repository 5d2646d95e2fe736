// A line of the status frame. It holds its whole text, as a screen reader tells it; what it shows
// stands in columns, and where the room is short a player's name is shortened and nothing else.
#pragma once

#include <QLabel>

class StatusLabel : public QLabel {
    Q_OBJECT

public:
    // Of the columns, the first names what it has room for at least, each other its widest word or
    // number after the gap that keeps it apart. A label without columns shows its text in one
    // piece.
    StatusLabel(const char* objectName, QStringList widestColumns, QWidget* parent);

    // The first `nameLength` bytes are a player's name.
    void ShowText(const std::string& text, std::size_t nameLength);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override; // a shortened text is whole in its tool-tip
    void paintEvent(QPaintEvent* event) override;

private:
    int WidthOf(const QStringList& texts) const;
    QString ShownFirstColumn() const;

    QStringList Columns; // the widest texts, each with its gap in front
    QString Name, Rest;  // the text of the first column
    QStringList Cells;   // of the others
};
