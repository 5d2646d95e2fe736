#include "ui/qt/file_dialogs.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/commands.h"
#include "ui/qt/file_lists.h"

namespace {

std::string FileName(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

} // namespace

OpenDialog::OpenDialog(QWidget* parent)
    : FormDialog(parent, "frmFileOpen", "Open a Quibs Game"), Lists(new FileLists(this)),
      txtSelectedFile(new QLineEdit(this)) {
    txtSelectedFile->setObjectName("txtSelectedFile");
    txtSelectedFile->setAccessibleName("Path of the selected game");
    auto* content = new QVBoxLayout;
    content->addWidget(Lists);
    content->addWidget(txtSelectedFile);
    SetContent(content);
    connect(Lists, &FileLists::GameClicked, this, &OpenDialog::filFileList_Click);
    connect(Lists, &FileLists::GameDoubleClicked, cmdOk, &QPushButton::click);
}

void OpenDialog::Form_Load() {
    txtSelectedFile->clear();
    Lists->Load();
}

void OpenDialog::filFileList_Click(const QString& name) {
    txtSelectedFile->setText(Lists->Directory() + '/' + name);
}

void OpenDialog::cmdOk_Click() {
    OpenGame(FileName(txtSelectedFile->text()));
    accept();
}

SaveDialog::SaveDialog(QWidget* parent)
    : FormDialog(parent, "frmFileSave", "Save a Quibs Game"), txtQuibsGameName(new QLineEdit(this)),
      Lists(new FileLists(this)) {
    auto* lblQuibsGameName = new QLabel("Quibs Game Name", this);
    lblQuibsGameName->setObjectName("lblQuibsGameName");
    txtQuibsGameName->setObjectName("txtQuibsGameName");
    lblQuibsGameName->setBuddy(txtQuibsGameName);
    auto* name = new QHBoxLayout;
    name->addWidget(lblQuibsGameName);
    name->addWidget(txtQuibsGameName);
    auto* content = new QVBoxLayout;
    content->addLayout(name);
    content->addWidget(Lists);
    SetContent(content);
    connect(Lists, &FileLists::GameClicked, this, &SaveDialog::filFileList_Click);
    connect(Lists, &FileLists::GameDoubleClicked, cmdOk, &QPushButton::click);
}

void SaveDialog::Form_Load() {
    txtQuibsGameName->clear();
    Lists->Load();
    txtQuibsGameName->setFocus();
}

void SaveDialog::filFileList_Click(const QString& name) {
    txtQuibsGameName->setText(name);
}

void SaveDialog::cmdOk_Click() {
    if (SaveGameAs(FileName(Lists->Directory()), FileName(txtQuibsGameName->text())))
        accept();
}
