#include "platform/qt/message_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>

namespace {

constexpr int Spacing = 16;          // pixels, as below
constexpr int RoomBesideText = 96;   // for the icon, the margins and the borders
constexpr int RoomBesideTitle = 110; // for the icon and the buttons of a title bar

QPixmap PixmapOf(MessageIcon icon, const QStyle& style) {
    const auto standard = icon == MessageIcon::Exclamation ? QStyle::SP_MessageBoxWarning
                                                           : QStyle::SP_MessageBoxQuestion;
    return style.standardIcon(standard).pixmap(style.pixelMetric(QStyle::PM_MessageBoxIconSize));
}

// What is centred by its blanks, which is right in a font whose characters are all of one width, is
// centred in every font.
QString Html(const QString& text, const char* whiteSpace) {
    QStringList lines = text.trimmed().toHtmlEscaped().split('\n');
    for (QString& line : lines)
        line = line.trimmed();
    return QString("<p align='%1' style='white-space: %2'>%3</p>")
        .arg(text.startsWith(' ') ? "center" : "left", whiteSpace, lines.join("<br>"));
}

// With places to break at inside the words that are too long for a line.
QString WithBreaks(const QString& text, const QFontMetrics& font, int lineWidth) {
    constexpr QChar zeroWidthSpace(0x200B);
    QStringList words = text.split(' ');
    for (QString& word : words) {
        if (font.horizontalAdvance(word) <= lineWidth)
            continue;
        for (qsizetype place = word.size() - 1; place > 0; --place)
            if (!word.at(place).isLowSurrogate())
                word.insert(place, zeroWidthSpace);
    }
    return words.join(' ');
}

// The desktop's title bar may have another font; it is seldom a wider one.
int WidthOfTitle(const QString& title, QFont font) {
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(title) + RoomBesideTitle;
}

// Holds its lines, and wraps them only where the screen is too narrow.
QLabel* MakeText(const QString& text, QWidget* parent) {
    auto* label = new QLabel(Html(text, "pre"), parent);
    label->setTextFormat(Qt::RichText);
    const int room = parent->screen()->availableSize().width() - RoomBesideText;
    if (label->sizeHint().width() > room) {
        label->setText(Html(WithBreaks(text, label->fontMetrics(), room), "pre-wrap"));
        label->setWordWrap(true);
        label->setMinimumWidth(room);
    }
    return label;
}

} // namespace

MessageDialog::MessageDialog(QWidget* parent, const QString& text, const QString& title,
                             MessageIcon icon, MessageButtons buttons)
    : QDialog(parent) {
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(title);
    auto* all = new QGridLayout(this);
    all->setHorizontalSpacing(Spacing);
    all->setVerticalSpacing(Spacing);
    all->setSizeConstraint(QLayout::SetFixedSize);
    const int textColumn = icon == MessageIcon::None ? 0 : 1;
    if (icon != MessageIcon::None) {
        auto* picture = new QLabel(this);
        picture->setPixmap(PixmapOf(icon, *style()));
        all->addWidget(picture, 0, 0, Qt::AlignTop);
    }
    all->setColumnStretch(1, 1);
    all->addWidget(MakeText(text, this), 0, textColumn, 1, 2 - textColumn);
    auto* answers = new QDialogButtonBox(buttons == MessageButtons::YesNo
                                             ? QDialogButtonBox::Yes | QDialogButtonBox::No
                                             : QDialogButtonBox::Ok,
                                         this);
    answers->setMinimumWidth(WidthOfTitle(title, font()));
    all->addWidget(answers, 1, 0, 1, 2);
    connect(answers, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
}
