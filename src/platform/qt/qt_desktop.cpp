// The clock, the event queue and the message boxes of the real desktop.
#include "platform/qt/qt_desktop.h"

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QTime>
#include <QTimer>
#include <cmath>
#include <utility>

#include "platform/qt/message_dialog.h"

namespace {

constexpr double TwipsPerInch = 1440;
// A logical pixel is 1/96 inch whatever the screen's scale.
constexpr double LogicalPixelsPerInch = 96;

MainWindowActions mainWindow;

} // namespace

void UseMainWindow(MainWindowActions actions) {
    mainWindow = std::move(actions);
}

float SecondsSinceMidnight() {
    constexpr float millisecondsPerSecond = 1000.0F;
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / millisecondsPerSecond;
}

void YieldToEvents(float atMostSeconds) {
    mainWindow.ShowControls();
    if (atMostSeconds == 0) {
        QCoreApplication::processEvents();
        return;
    }
    QTimer alarm;
    if (atMostSeconds > 0) {
        alarm.setTimerType(Qt::PreciseTimer);
        alarm.setSingleShot(true);
        alarm.start(static_cast<int>(std::ceil(atMostSeconds * 1000)));
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

MessageAnswer ShowMessageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) {
    mainWindow.ShowControls();
    QWidget* active = QApplication::activeWindow();
    MessageDialog box(active != nullptr ? active : mainWindow.Window, QString::fromStdString(text),
                      QString::fromStdString(title), icon, buttons);
    const bool isAccepted = box.exec() == QDialog::Accepted;
    if (buttons == MessageButtons::Ok)
        return MessageAnswer::Ok;
    return isAccepted ? MessageAnswer::Yes : MessageAnswer::No;
}

bool IsQuestionOpen() {
    return QApplication::activeModalWidget() != nullptr;
}

PointerPlace PlaceOfPointer() {
    return mainWindow.PlaceOfPointer();
}

bool IsListenedTo() {
    return QAccessible::isActive();
}

void Say(const std::string& text) {
    mainWindow.Say(text);
}

void ShowForm(Form form) {
    mainWindow.ShowForm(form);
}

double ScreenTwipsPerPixelX() {
    return TwipsPerInch / LogicalPixelsPerInch;
}

double ScreenTwipsPerPixelY() {
    return TwipsPerInch / LogicalPixelsPerInch;
}

double ScreenWidth() {
    return QGuiApplication::primaryScreen()->geometry().width() * ScreenTwipsPerPixelX();
}

void PlaceMainWindow(WindowPlace place) {
    mainWindow.Place(place);
}
