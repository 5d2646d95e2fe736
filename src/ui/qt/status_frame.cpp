#include "ui/qt/status_frame.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "platform/controls.h"
#include "ui/qt/status_label.h"
#include "ui/qt/swatch.h"

namespace {

constexpr int SmallestWidth = 540; // pixels, as the lengths below
constexpr int RoomBeside = 32;     // for the window's margins and borders
constexpr double SmallestFont = 8; // points
constexpr int Margin = 14;
constexpr int RoomBetweenColumns = 10;
constexpr int BandMargin = 6; // beside the marked line
constexpr int BarWidth = 4;
constexpr float BandOpacity = 0.14F;

enum Column { SwatchColumn, PlayerColumn, GapColumn, CounterColumn };
enum Row { FirstRow, SecondRow, TurnRow };

QStringList WidestPlayer() {
    return {"Guardian:", " 00000", "   Intelligent"};
}

QStringList WidestCounter() {
    return {"Boxes:", " 00000", " of", " 00000"};
}

void ShowCaption(StatusLabel* label, const Label& control) {
    label->ShowText(control.Caption, control.NameLength);
    label->setVisible(!control.Caption.empty());
}

} // namespace

StatusFrame::StatusFrame(QWidget* parent)
    : QFrame(parent), shpPlayer1Status(new Swatch("shpPlayer1Status", "Color of player 1", this)),
      shpPlayer2Status(new Swatch("shpPlayer2Status", "Color of player 2", this)),
      shpPlayer1Active(new Swatch("shpPlayer1Active", "Marker", this)),
      shpPlayer2Active(new Swatch("shpPlayer2Active", "Marker", this)),
      shpPlayer3Active(new Swatch("shpPlayer3Active", "Marker", this)),
      shpPlayer4Active(new Swatch("shpPlayer4Active", "Marker", this)),
      txtPlayer1Status(new StatusLabel("txtPlayer1Status", WidestPlayer(), this)),
      txtPlayer2Status(new StatusLabel("txtPlayer2Status", WidestPlayer(), this)),
      txtBoxesStatus(new StatusLabel("txtBoxesStatus", WidestCounter(), this)),
      txtLinesStatus(new StatusLabel("txtLinesStatus", WidestCounter(), this)),
      lblPlayer1Active(new StatusLabel("lblPlayer1Active", {}, this)),
      lblPlayer2Active(new StatusLabel("lblPlayer2Active", {}, this)) {
    setObjectName("fraStatistics");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Margin, 8, Margin, 6);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(PlayerColumn, 1);
    grid->setColumnMinimumWidth(GapColumn, RoomBetweenColumns);
    grid->addWidget(shpPlayer1Status, FirstRow, SwatchColumn);
    grid->addWidget(shpPlayer2Status, SecondRow, SwatchColumn);
    grid->addWidget(txtPlayer1Status, FirstRow, PlayerColumn);
    grid->addWidget(txtPlayer2Status, SecondRow, PlayerColumn);
    grid->addWidget(txtBoxesStatus, FirstRow, CounterColumn);
    grid->addWidget(txtLinesStatus, SecondRow, CounterColumn);

    // Hidden markers keep their places, so that the captions stand still while they blink.
    auto* turn = new QHBoxLayout;
    turn->setSpacing(14);
    turn->addStretch();
    for (QWidget* part :
         std::initializer_list<QWidget*>{shpPlayer3Active, shpPlayer1Active, lblPlayer1Active,
                                         lblPlayer2Active, shpPlayer2Active, shpPlayer4Active})
        turn->addWidget(part);
    turn->addStretch();
    grid->addLayout(turn, TurnRow, 0, 1, CounterColumn + 1);
    QFont bold;
    bold.setBold(true);
    lblPlayer1Active->setFont(bold);
    lblPlayer2Active->setFont(bold);
    TakeSize();
}

void StatusFrame::TakeSize() {
    const int screenWidth = screen()->availableSize().width();
    if (screenWidth > RoomBeside) // a screen that is being changed may have no size at all
        TakeFont(screenWidth - RoomBeside);
    auto* grid = static_cast<QGridLayout*>(layout());
    const int turnHeight = lblPlayer1Active->sizeHint().height(); // also when no caption shows
    if (grid->rowMinimumHeight(TurnRow) != turnHeight)
        grid->setRowMinimumHeight(TurnRow, turnHeight);
    const QSize needed = grid->totalMinimumSize();
    const auto cutOff = [](const StatusLabel* line) {
        return line->sizeHint().width() - line->minimumSizeHint().width();
    };
    const int wanted =
        needed.width() + std::max(cutOff(txtPlayer1Status), cutOff(txtPlayer2Status));
    setFixedSize(std::max(needed.width(), std::min(Room, std::max(SmallestWidth, wanted))),
                 needed.height());
}

void StatusFrame::TakeFont(int room) {
    const auto take = [this](const QFont& font) {
        setFont(font);
        layout()->activate(); // else the row of the captions keeps its old size
    };
    if (room != Room || parentWidget()->font() != DesktopFont) {
        Room = room;
        DesktopFont = parentWidget()->font();
        take(QFont());
    }
    QFont smaller = font();
    while (layout()->totalMinimumSize().width() > room && smaller.pointSizeF() > SmallestFont) {
        smaller.setPointSizeF(smaller.pointSizeF() - 1);
        take(smaller);
    }
}

bool StatusFrame::event(QEvent* event) {
    const bool isHandled = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::ApplicationFontChange)
        TakeSize();
    return isHandled;
}

void StatusFrame::paintEvent(QPaintEvent* /*event*/) {
    const int marked = frmQuibsMain.fraStatistics.MarkedPlayer;
    if (marked == 0)
        return;
    const QWidget* swatch = marked == 1 ? shpPlayer1Status : shpPlayer2Status;
    const QWidget* line = marked == 1 ? txtPlayer1Status : txtPlayer2Status;
    const QRect band =
        (swatch->geometry() | line->geometry()).adjusted(-BandMargin, 0, BandMargin, 0);
    QPainter painter(this);
    QColor shade = palette().color(QPalette::WindowText);
    painter.fillRect(band.left() - BarWidth, band.top(), BarWidth, band.height(), shade);
    shade.setAlphaF(BandOpacity);
    painter.fillRect(band, shade);
}

void StatusFrame::ShowControls() {
    shpPlayer1Status->Show(frmQuibsMain.shpPlayer1Status);
    shpPlayer2Status->Show(frmQuibsMain.shpPlayer2Status);
    shpPlayer1Active->Show(frmQuibsMain.shpPlayer1Active);
    shpPlayer2Active->Show(frmQuibsMain.shpPlayer2Active);
    shpPlayer3Active->Show(frmQuibsMain.shpPlayer3Active);
    shpPlayer4Active->Show(frmQuibsMain.shpPlayer4Active);
    const MainWindowControls& controls = frmQuibsMain;
    for (const auto& [label, text] : {std::pair(txtPlayer1Status, controls.txtPlayer1Status),
                                      {txtPlayer2Status, controls.txtPlayer2Status},
                                      {txtBoxesStatus, controls.txtBoxesStatus},
                                      {txtLinesStatus, controls.txtLinesStatus}})
        label->ShowText(text.Text, text.NameLength);
    ShowCaption(lblPlayer1Active, controls.lblPlayer1Active);
    ShowCaption(lblPlayer2Active, controls.lblPlayer2Active);
    update();
}
