// Sets the name, the colour and the kind of each player, also while a game is under way.
#pragma once

#include "core/state/game_state.h"
#include "ui/qt/form_dialog.h"

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class Swatch;

class PlayersDialog : public FormDialog {
    Q_OBJECT

public:
    explicit PlayersDialog(QWidget* parent);

protected:
    void Form_Load() override;
    void cmdOk_Click() override;

private:
    struct PlayerControls {
        QLineEdit* txtName;
        Swatch* shpColor;
        QButtonGroup* Kinds; // the options by kind
    };

    PlayerControls AddPlayer(QGridLayout* grid, int player);
    QGroupBox* AddKinds(int player, QButtonGroup* kinds);

    void cmdPlayer1Color_Click();
    void cmdPlayer2Color_Click();

    PerPlayer<PlayerControls> Players;
};
