// Where a window stands on its screen, together with its title bar and borders. Until the window
// is shown nobody knows how wide they are.
#pragma once

#include <QDialog>
#include <optional>

// In the middle of the whole screen.
void CentreOnScreen(QWidget& window);

// Wholly on the usable part of the screen it is on: moved there, and made smaller where it is
// larger. False while the desktop keeps it in another way, or the screen is being changed.
bool KeepOnScreen(QWidget& window);

// Comes up where it was closed.
class PlacedDialog : public QDialog {
    Q_OBJECT

public:
    void done(int result) override;

protected:
    using QDialog::QDialog;

    void ShowAndRaise();

private:
    // Inside its title bar and borders, which a hidden window has not.
    std::optional<QPoint> LastPlace;
};
