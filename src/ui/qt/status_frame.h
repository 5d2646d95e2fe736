// The frame below the field with scores, counters and whose turn it is.
#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class Swatch;

class StatusFrame : public QFrame {
    Q_OBJECT

public:
    explicit StatusFrame(QWidget* parent);

    void ShowControls();

private:
    QLineEdit* AddTextBox(const char* objectName, const char* accessibleName, int row, int column);
    QLabel* AddCaption(const char* objectName, class QHBoxLayout* row, Swatch* before,
                       Swatch* after);

    Swatch* shpPlayer1Status;
    Swatch* shpPlayer2Status;
    Swatch* shpPlayer1Active;
    Swatch* shpPlayer2Active;
    Swatch* shpPlayer3Active;
    Swatch* shpPlayer4Active;
    QLineEdit* txtPlayer1Status;
    QLineEdit* txtPlayer2Status;
    QLineEdit* txtBoxesStatus;
    QLineEdit* txtLinesStatus;
    QLabel* lblPlayer1Active;
    QLabel* lblPlayer2Active;
};
