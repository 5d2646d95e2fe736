// The dialogs that open and save a game.
#pragma once

#include "ui/qt/form_dialog.h"

class FileLists;
class QLineEdit;

class OpenDialog : public FormDialog {
    Q_OBJECT

public:
    explicit OpenDialog(QWidget* parent);

protected:
    void Load() override;
    bool Store() override;

private:
    FileLists* Lists;
    QLineEdit* txtSelectedFile;
};

class SaveDialog : public FormDialog {
    Q_OBJECT

public:
    explicit SaveDialog(QWidget* parent);

protected:
    void Load() override;
    bool Store() override;

private:
    QLineEdit* txtQuibsGameName;
    FileLists* Lists;
};
