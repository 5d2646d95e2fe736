// The clock, the event queue and the message boxes of the real desktop.
#include "platform/qt/qt_desktop.h"

#include <QAccessible>
#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTime>
#include <QTimer>
#include <cmath>
#include <utility>

namespace {

constexpr double TwipsPerInch = 1440;
// A logical pixel is 1/96 inch whatever the screen's scale.
constexpr double LogicalPixelsPerInch = 96;

MainWindowActions mainWindow;

QMessageBox::Icon ToQt(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

MessageAnswer FromQt(int button) {
    switch (button) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    default:
        return MessageAnswer::Ok;
    }
}

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
    QMessageBox box(QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowTitle(QString::fromStdString(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text).remove('\r'));
    box.setIcon(ToQt(icon));
    box.setStandardButtons(buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                            : QMessageBox::Ok);
    return FromQt(box.exec());
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
