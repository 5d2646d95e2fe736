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
    void Form_Load() override;
    void cmdOk_Click() override;

private:
    void filFileList_Click(const QString& name);

    FileLists* Lists;
    QLineEdit* txtSelectedFile;
};

class SaveDialog : public FormDialog {
    Q_OBJECT

public:
    explicit SaveDialog(QWidget* parent);

protected:
    void Form_Load() override;
    void cmdOk_Click() override;

private:
    void filFileList_Click(const QString& name);

    QLineEdit* txtQuibsGameName;
    FileLists* Lists;
};
