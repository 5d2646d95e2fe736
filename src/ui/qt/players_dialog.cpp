#include "ui/qt/players_dialog.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/commands.h"
#include "ui/qt/swatch.h"

namespace {

constexpr int NameWidth = 180; // pixels
constexpr int SwatchSpacing = 8;

// The Tab key goes to the option that is checked, and passes the others.
void CheckKind(const QButtonGroup* kinds, int kind) {
    for (QAbstractButton* option : kinds->buttons()) {
        const bool isChosen = kinds->id(option) == kind;
        option->setChecked(isChosen);
        option->setFocusPolicy(isChosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

} // namespace

PlayersDialog::PlayersDialog(QWidget* parent)
    : FormDialog(parent, "frmDefinePlayers", "Define Players") {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    Players.at(1) = AddPlayer(grid, 1);
    Players.at(2) = AddPlayer(grid, 2);
    SetContent(grid);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

PlayersDialog::PlayerControls PlayersDialog::AddPlayer(QGridLayout* grid, int player) {
    PlayerControls controls{};
    const QString number = QString::number(player);
    auto* label = new QLabel(QString("Name of Player %1:").arg(number), this);
    label->setObjectName(QString("lblPlayer%1Name").arg(number));
    controls.txtName = new QLineEdit(this);
    controls.txtName->setObjectName(QString("txtPlayer%1Name").arg(number));
    controls.txtName->setMinimumWidth(NameWidth);
    label->setBuddy(controls.txtName);
    controls.shpColor = new Swatch(QString("shpPlayer%1Color").arg(number),
                                   QString("Color of player %1").arg(number), this);
    auto* button = new QPushButton("Color...", this);
    button->setObjectName(QString("cmdPlayer%1Color").arg(number));
    button->setAccessibleName(QString("Choose the color of player %1").arg(number));
    connect(button, &QPushButton::clicked, this,
            player == 1 ? &PlayersDialog::cmdPlayer1Color_Click
                        : &PlayersDialog::cmdPlayer2Color_Click);

    controls.Kinds = new QButtonGroup(this);
    auto* color = new QHBoxLayout;
    color->setSpacing(SwatchSpacing);
    color->addWidget(controls.shpColor);
    color->addWidget(button);
    color->addStretch();
    const int column = player - 1;
    grid->addWidget(label, 0, column);
    grid->addWidget(controls.txtName, 1, column);
    grid->addLayout(color, 2, column);
    grid->addWidget(AddKinds(player, controls.Kinds), 3, column);
    return controls;
}

QGroupBox* PlayersDialog::AddKinds(int player, QButtonGroup* kinds) {
    auto* frame = new QGroupBox("Type of Player", this);
    frame->setObjectName(QString("fraPlayer%1SkillLevel").arg(player));
    auto* options = new QVBoxLayout(frame);
    for (const KindTraits& kind : PlayerKinds) {
        auto* option =
            new QRadioButton(QString(kind.IsComputer ? "Computer %1" : "%1").arg(kind.Word), frame);
        option->setObjectName(QString("optPlayer%1%2").arg(player).arg(kind.Word));
        kinds->addButton(option, kind.Kind);
        options->addWidget(option);
    }
    return frame;
}

void PlayersDialog::Form_Load() {
    for (const int player : {1, 2}) {
        const PlayerControls& controls = Players.at(player);
        controls.txtName->setText(QString::fromStdString(Game.PlayerName.at(player)));
        controls.shpColor->SetFillColor(Game.PlayerColor.at(player));
        const int kind = KindOf(player).Kind;
        CheckKind(controls.Kinds, kind == KindCount ? Humanoid : kind);
    }
    Players.at(1).txtName->setFocus();
    Players.at(1).txtName->selectAll();
}

void PlayersDialog::cmdPlayer1Color_Click() {
    PickColor(Players.at(1).shpColor);
}

void PlayersDialog::cmdPlayer2Color_Click() {
    PickColor(Players.at(2).shpColor);
}

void PlayersDialog::cmdOk_Click() {
    PlayerSettings chosen;
    for (const int player : {1, 2}) {
        const PlayerControls& controls = Players.at(player);
        // As displayed: the text itself keeps pasted line breaks.
        chosen.PlayerName.at(player) = controls.txtName->displayText().toStdString();
        chosen.PlayerColor.at(player) = controls.shpColor->FillColor();
        chosen.PlayerKind.at(player) = ToInteger(controls.Kinds->checkedId());
    }
    SetPlayers(chosen);
    accept();
}
