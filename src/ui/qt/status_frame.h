// The frame below the field with scores, counters and whose turn it is.
#pragma once

#include <QFrame>

class StatusLabel;
class Swatch;

// As wide as its widest texts and the players' names in the desktop's font, and never narrower than
// a good deal, as far as the screen has room: where it has not, names are shortened, and then its
// font is smaller. It has a fixed size, which changes with the font and the names.
class StatusFrame : public QFrame {
    Q_OBJECT

public:
    explicit StatusFrame(QWidget* parent);

    void ShowControls();

    // To be called when the screen has changed; what changes the texts' size does it by itself.
    void TakeSize();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // The desktop's, or a smaller one in which every text has room.
    void TakeFont(int room);

    int Room = 0; // pixels, on the screen
    QFont DesktopFont;
    Swatch* shpPlayer1Status;
    Swatch* shpPlayer2Status;
    Swatch* shpPlayer1Active;
    Swatch* shpPlayer2Active;
    Swatch* shpPlayer3Active;
    Swatch* shpPlayer4Active;
    StatusLabel* txtPlayer1Status;
    StatusLabel* txtPlayer2Status;
    StatusLabel* txtBoxesStatus;
    StatusLabel* txtLinesStatus;
    StatusLabel* lblPlayer1Active;
    StatusLabel* lblPlayer2Active;
};
