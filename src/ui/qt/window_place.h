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

// For a window that is not shown yet: beside another one and as high, where the screen has room for
// it at its width or at least at the narrowest. Else nothing happens.
void PlaceBeside(QWidget& window, const QWidget& other, int narrowest);

// Comes up where it was closed.
class PlacedDialog : public QDialog {
    Q_OBJECT

public:
    void done(int result) override;

protected:
    using QDialog::QDialog;

    void ShowAndRaise();
    bool HasPlace() const { return LastPlace.has_value(); }

private:
    // Inside its title bar and borders, which a hidden window has not.
    std::optional<QPoint> LastPlace;
};
