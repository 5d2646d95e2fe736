#include "ui/qt/status_label.h"

#include <QEvent>
#include <QPainter>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace {

constexpr int RoomAboveAndBelow = 4; // pixels
constexpr int LettersOfName = 8;     // that are never cut off

} // namespace

StatusLabel::StatusLabel(const char* objectName, QStringList widestColumns, QWidget* parent)
    : QLabel(parent), Columns(std::move(widestColumns)) {
    setObjectName(objectName);
    setTextFormat(Qt::PlainText);
}

void StatusLabel::ShowText(const std::string& text, std::size_t nameLength) {
    const QString whole = QString::fromStdString(text);
    Name = QString::fromStdString(text.substr(0, nameLength));
    Rest = whole.mid(Name.size());
    Cells.clear();
    if (!Columns.isEmpty()) {
        Cells = Rest.split(' ', Qt::SkipEmptyParts);
        Rest = Cells.isEmpty() ? QString() : Cells.takeFirst();
    }
    setText(whole);
    update();
}

QSize StatusLabel::sizeHint() const {
    const QSize smallest = minimumSizeHint();
    const int whole = WidthOf({Name, Rest}) + WidthOf(Columns.mid(1));
    return {Columns.isEmpty() ? whole : std::max(whole, smallest.width()), smallest.height()};
}

QSize StatusLabel::minimumSizeHint() const {
    const QStringList widest =
        Columns.isEmpty() ? QStringList{Name.left(LettersOfName), Rest} : Columns;
    // All lines are equally high, so that a bold font is not loaded before it is shown.
    return {WidthOf(widest), parentWidget()->fontMetrics().height() + RoomAboveAndBelow};
}

bool StatusLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip)
        setToolTip(ShownFirstColumn() == Name + Rest ? QString()
                                                     : Qt::convertFromPlainText(text()));
    return QLabel::event(event);
}

void StatusLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QRect room = rect();
    for (qsizetype i = Cells.size(); i > 0 && i < Columns.size(); --i) {
        const QString& widest = Columns.at(i);
        const bool isFigure = widest.back().isDigit();
        QRect column = room;
        column.setLeft(room.right() + 1 - WidthOf({isFigure ? widest : widest.trimmed()}));
        const Qt::Alignment alignment = isFigure ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(column, static_cast<int>(Qt::AlignVCenter | alignment), Cells.at(i - 1));
        room.setWidth(room.width() - WidthOf({widest}));
    }
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, ShownFirstColumn());
}

int StatusLabel::WidthOf(const QStringList& texts) const {
    int width = 0;
    for (const QString& text : texts)
        width += fontMetrics().horizontalAdvance(text);
    return width;
}

QString StatusLabel::ShownFirstColumn() const {
    const int room = width() - WidthOf(Columns.mid(1)) - WidthOf({Rest});
    // Asked first, for its whole pixels decide what has room.
    const bool isWhole = WidthOf({Name}) <= room;
    return (isWhole ? Name : fontMetrics().elidedText(Name, Qt::ElideRight, room)) + Rest;
}
