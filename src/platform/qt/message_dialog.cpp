#include "platform/qt/message_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QStyle>

namespace {

constexpr int Spacing = 16;        // pixels, as below
constexpr int RoomBesideText = 72; // for the icon, the margins and the borders

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

// Holds its lines, and wraps them only where the screen is too narrow.
QLabel* MakeText(const QString& text, QWidget* parent) {
    auto* label = new QLabel(Html(text, "pre"), parent);
    label->setTextFormat(Qt::RichText);
    const int room = parent->screen()->availableSize().width() - RoomBesideText;
    if (label->sizeHint().width() > room) {
        label->setText(Html(text, "pre-wrap"));
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
    if (icon != MessageIcon::None) {
        auto* picture = new QLabel(this);
        picture->setPixmap(PixmapOf(icon, *style()));
        all->addWidget(picture, 0, 0, Qt::AlignTop);
    }
    all->addWidget(MakeText(text, this), 0, 1);
    auto* answers = new QDialogButtonBox(buttons == MessageButtons::YesNo
                                             ? QDialogButtonBox::Yes | QDialogButtonBox::No
                                             : QDialogButtonBox::Ok,
                                         this);
    all->addWidget(answers, 1, 0, 1, 2);
    connect(answers, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
}
