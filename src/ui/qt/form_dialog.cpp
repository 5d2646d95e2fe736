#include "ui/qt/form_dialog.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/commands.h"

namespace {

constexpr int Spacing = 16; // pixels, between content and buttons

// Shows all of a dialog's content that the screen has room for beside the buttons, the rest is
// scrolled to.
class ContentArea : public QScrollArea {
public:
    ContentArea(QLayout* content, QWidget* parent) : QScrollArea(parent) {
        content->setContentsMargins(0, 0, 0, 0);
        auto* inside = new QWidget(this); // of the same window, so that the tab order stays
        inside->setLayout(content);
        setWidget(inside);
        setWidgetResizable(true);
        setFrameShape(NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    QSize sizeHint() const override { return Bounded(widget()->sizeHint()); }
    QSize minimumSizeHint() const override { return Bounded(widget()->minimumSizeHint()); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry(); // the content has another size
        return QScrollArea::eventFilter(watched, event);
    }

private:
    QSize Bounded(QSize whole) const {
        constexpr QSize marginsAndTitle(24, 68);
        const QSize buttons(0, 2 * fontMetrics().height() + Spacing);
        const QSize room = screen()->availableSize() - marginsAndTitle - buttons;
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        const QSize bars(whole.height() > room.height() ? bar : 0,
                         whole.width() > room.width() ? bar : 0);
        return (whole + bars).boundedTo(room);
    }
};

} // namespace

QPushButton* AddOk(QDialogButtonBox& buttons) {
    QPushButton* const cmdOk = buttons.addButton(QDialogButtonBox::Ok);
    cmdOk->setText("Ok");
    cmdOk->setObjectName("cmdOk");
    cmdOk->setDefault(true);
    return cmdOk;
}

FormDialog::FormDialog(QWidget* parent, const char* objectName, const char* caption)
    : PlacedDialog(parent) {
    setObjectName(objectName);
    setWindowTitle(caption);
}

void FormDialog::OpenOrRaise() {
    if (!isVisible())
        Form_Load();
    ShowAndRaise();
}

void FormDialog::SetContent(QLayout* content) {
    auto* area = new ContentArea(content, this);
    auto* buttons = new QDialogButtonBox(this); // in the desktop's manner, as in message boxes
    cmdOk = AddOk(*buttons);
    auto* cmdCancel = buttons->addButton(QDialogButtonBox::Cancel);
    cmdCancel->setText("Cancel");
    cmdCancel->setObjectName("cmdCancel");
    connect(cmdOk, &QPushButton::clicked, this, [this] { RunGuarded([this] { cmdOk_Click(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, &FormDialog::cmdCancel_Click);

    auto* all = new QVBoxLayout(this);
    all->setSpacing(Spacing);
    all->addWidget(area);
    all->addWidget(buttons);
}
