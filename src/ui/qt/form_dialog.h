// What the program's dialogs share: they are filled each time they open, stay beside the running
// game, store their choices on Ok and forget them on Cancel.
#pragma once

#include "ui/qt/window_place.h"

class QDialogButtonBox;
class QLayout;
class QPushButton;

// The game's own default button.
QPushButton* AddOk(QDialogButtonBox& buttons);

class FormDialog : public PlacedDialog {
    Q_OBJECT

public:
    // Raises the dialog if it is open already, without filling it again.
    void OpenOrRaise();

protected:
    FormDialog(QWidget* parent, const char* objectName, const char* caption);

    // Lays `content` out above the buttons "Ok" and "Cancel". Where the screen is too small for it,
    // it is scrolled, and the buttons stay in sight.
    void SetContent(QLayout* content);

    // Fills the controls from the game.
    virtual void Form_Load() = 0;

    // Carries out what the controls say, and closes the dialog unless something is missing.
    virtual void cmdOk_Click() = 0;
    void cmdCancel_Click() { reject(); }

    QPushButton* cmdOk = nullptr; // once the content is set
};
