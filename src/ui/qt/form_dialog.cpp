#include "ui/qt/form_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/commands.h"

FormDialog::FormDialog(QWidget* parent, const char* objectName, const char* caption)
    : PlacedDialog(parent) {
    setObjectName(objectName);
    setWindowTitle(caption);
}

void FormDialog::OpenOrRaise() {
    if (!isVisible())
        Form_Load();
    ShowAndRaise();
}

void FormDialog::SetContent(QLayout* content) {
    cmdOk = new QPushButton("Ok", this);
    cmdOk->setObjectName("cmdOk");
    cmdOk->setDefault(true);
    auto* cmdCancel = new QPushButton("Cancel", this);
    cmdCancel->setObjectName("cmdCancel");
    cmdCancel->setAutoDefault(false);
    connect(cmdOk, &QPushButton::clicked, this, [this] { RunGuarded([this] { cmdOk_Click(); }); });
    connect(cmdCancel, &QPushButton::clicked, this, &FormDialog::cmdCancel_Click);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdCancel);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(16);
    all->addLayout(content);
    all->addLayout(buttons);
}
