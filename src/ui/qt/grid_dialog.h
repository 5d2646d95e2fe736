// Sets the size of the next game's grid and the colours of the field.
#pragma once

#include "ui/qt/form_dialog.h"

class QComboBox;
class QGridLayout;
class Swatch;

class GridDialog : public FormDialog {
    Q_OBJECT

public:
    explicit GridDialog(QWidget* parent);

protected:
    void Form_Load() override;
    void cmdOk_Click() override;

private:
    QComboBox* AddBoxCount(QGridLayout* grid, int row, const char* name, const char* caption);
    Swatch* AddColor(QGridLayout* grid, int row, const char* name, const char* caption,
                     void (GridDialog::*cmd_Click)());

    void cmdGridBckGrnd_Click();
    void cmdGridLine_Click();
    void cmdGridGhost_Click();
    void cmdGridComputer_Click();

    QComboBox* comFieldBoxesHorz;
    QComboBox* comFieldBoxesVert;
    Swatch* shpGridBckGrnd;
    Swatch* shpGridLine;
    Swatch* shpGridGhost;
    Swatch* shpGridComputer;
};
