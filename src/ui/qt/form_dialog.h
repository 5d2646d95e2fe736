// What the program's dialogs share: they are filled each time they open, stay beside the running
// game, store their choices on Ok and forget them on Cancel.
#pragma once

#include <QDialog>

class QGridLayout;
class QLayout;

class FormDialog : public QDialog {
    Q_OBJECT

public:
    // Raises the dialog if it is open already, without filling it again.
    void OpenOrRaise();

protected:
    FormDialog(QWidget* parent, const char* objectName, const char* caption);

    // Lays `content` out above the buttons "Ok" and "Cancel".
    void SetContent(QLayout* content);
    void Ok();

    // Fills the controls from the game.
    virtual void Load() = 0;

    // Ok: carries out what the controls say. Returns false when the dialog is to stay open.
    virtual bool Store() = 0;
};
