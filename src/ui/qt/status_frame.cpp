#include "ui/qt/status_frame.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>

#include "platform/controls.h"
#include "ui/qt/swatch.h"

namespace {

constexpr int FrameWidth = 540; // pixels
enum Column { SwatchColumn, PlayerColumn, CounterColumn };
constexpr int TurnRow = 2;

void ShowText(QLineEdit* box, const TextBox& control) {
    const QString text = QString::fromStdString(control.Text);
    if (box->text() == text)
        return;
    box->setText(text);
    box->setCursorPosition(0); // a long name shows from its start, the rest in a tool-tip
    const bool isWhole = box->fontMetrics().horizontalAdvance(text) < box->width();
    box->setToolTip(isWhole ? QString() : Qt::convertFromPlainText(text));
}

void ShowCaption(QLabel* label, const Label& control) {
    const QString caption = QString::fromStdString(control.Caption);
    label->setText(label->fontMetrics().elidedText(caption, Qt::ElideRight, label->width()));
}

} // namespace

StatusFrame::StatusFrame(QWidget* parent)
    : QFrame(parent), shpPlayer1Status(new Swatch("shpPlayer1Status", "Color of player 1", this)),
      shpPlayer2Status(new Swatch("shpPlayer2Status", "Color of player 2", this)),
      shpPlayer1Active(new Swatch("shpPlayer1Active", "Player 1 is to move", this)),
      shpPlayer2Active(new Swatch("shpPlayer2Active", "Player 2 is to move", this)),
      shpPlayer3Active(new Swatch("shpPlayer3Active", "Game over", this)),
      shpPlayer4Active(new Swatch("shpPlayer4Active", "Game over", this)) {
    setObjectName("fraStatistics");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(10, 8, 10, 8);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(PlayerColumn, 3);
    grid->setColumnStretch(CounterColumn, 2);
    grid->addWidget(shpPlayer1Status, 0, SwatchColumn);
    grid->addWidget(shpPlayer2Status, 1, SwatchColumn);
    txtPlayer1Status = AddTextBox("txtPlayer1Status", "Player 1", 0, PlayerColumn);
    txtPlayer2Status = AddTextBox("txtPlayer2Status", "Player 2", 1, PlayerColumn);
    txtBoxesStatus = AddTextBox("txtBoxesStatus", "Boxes claimed", 0, CounterColumn);
    txtLinesStatus = AddTextBox("txtLinesStatus", "Lines drawn", 1, CounterColumn);

    auto* turn = new QHBoxLayout;
    turn->setSpacing(10);
    lblPlayer1Active = AddCaption("lblPlayer1Active", turn, shpPlayer1Active, shpPlayer3Active);
    turn->addSpacing(10);
    lblPlayer2Active = AddCaption("lblPlayer2Active", turn, shpPlayer2Active, shpPlayer4Active);
    grid->addLayout(turn, TurnRow, 0, 1, CounterColumn + 1);
    setFixedSize(FrameWidth, sizeHint().height());
}

QLineEdit* StatusFrame::AddTextBox(const char* objectName, const char* accessibleName, int row,
                                   int column) {
    auto* box = new QLineEdit(this);
    box->setObjectName(objectName);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setContextMenuPolicy(Qt::NoContextMenu);
    static_cast<QGridLayout*>(layout())->addWidget(box, row, column);
    return box;
}

QLabel* StatusFrame::AddCaption(const char* objectName, QHBoxLayout* row, Swatch* before,
                                Swatch* after) {
    auto* caption = new QLabel(this);
    caption->setObjectName(objectName);
    caption->setTextFormat(Qt::PlainText);
    caption->setAlignment(Qt::AlignCenter);
    caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    row->addWidget(before);
    row->addWidget(caption, 1);
    row->addWidget(after);
    return caption;
}

void StatusFrame::ShowControls() {
    shpPlayer1Status->Show(frmQuibsMain.shpPlayer1Status);
    shpPlayer2Status->Show(frmQuibsMain.shpPlayer2Status);
    shpPlayer1Active->Show(frmQuibsMain.shpPlayer1Active);
    shpPlayer2Active->Show(frmQuibsMain.shpPlayer2Active);
    shpPlayer3Active->Show(frmQuibsMain.shpPlayer3Active);
    shpPlayer4Active->Show(frmQuibsMain.shpPlayer4Active);
    ShowText(txtPlayer1Status, frmQuibsMain.txtPlayer1Status);
    ShowText(txtPlayer2Status, frmQuibsMain.txtPlayer2Status);
    ShowText(txtBoxesStatus, frmQuibsMain.txtBoxesStatus);
    ShowText(txtLinesStatus, frmQuibsMain.txtLinesStatus);
    ShowCaption(lblPlayer1Active, frmQuibsMain.lblPlayer1Active);
    ShowCaption(lblPlayer2Active, frmQuibsMain.lblPlayer2Active);
}
