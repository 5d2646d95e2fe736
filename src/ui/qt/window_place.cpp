#include "ui/qt/window_place.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

void CentreOnScreen(QWidget& window) {
    QRect frame = window.frameGeometry();
    frame.moveCenter(window.screen()->geometry().center());
    window.move(frame.topLeft());
}

bool KeepOnScreen(QWidget& window) {
    const QRect area = window.screen()->availableGeometry();
    // To move a maximised window would end that state.
    if (window.isMaximized() || window.isFullScreen() || window.isMinimized() || area.isEmpty())
        return false;
    const QRect frame = window.frameGeometry();
    const QSize size = frame.size().boundedTo(area.size());
    const QRect kept(std::clamp(frame.left(), area.left(), area.right() + 1 - size.width()),
                     std::clamp(frame.top(), area.top(), area.bottom() + 1 - size.height()),
                     size.width(), size.height());
    if (kept == frame)
        return true;
    const QRect inside = window.geometry();
    window.setGeometry(kept.adjusted(inside.left() - frame.left(), inside.top() - frame.top(),
                                     inside.right() - frame.right(),
                                     inside.bottom() - frame.bottom()));
    return true;
}

void PlaceBeside(QWidget& window, const QWidget& other, int narrowest) {
    const QRect area = other.screen()->availableGeometry();
    const QRect frame = other.frameGeometry();
    const QRect inside = other.geometry();
    const int border = inside.left() - frame.left(); // of the other one; its own will be the same
    const int left = frame.left() - area.left();
    const int right = area.right() - frame.right();
    const int room = std::max(left, right) - 2 * border;
    if (room < narrowest)
        return;
    const QSize size(std::min(window.width(), room), std::max(window.height(), inside.height()));
    const int x = right >= left ? frame.right() + 1 + border : frame.left() - border - size.width();
    window.setGeometry(QRect({x, inside.top()}, size));
}

void PlacedDialog::ShowAndRaise() {
    if (!isVisible() && LastPlace) {
        setGeometry(QRect(*LastPlace, size()));
        KeepOnScreen(*this);
    }
    show();
    raise();
    activateWindow();
}

void PlacedDialog::done(int result) {
    LastPlace = geometry().topLeft();
    QDialog::done(result);
}
