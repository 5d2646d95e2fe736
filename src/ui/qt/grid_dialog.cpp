#include "ui/qt/grid_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "core/play/game_setup.h"
#include "core/state/game_state.h"
#include "display/field.h"
#include "ui/commands.h"
#include "ui/qt/swatch.h"

namespace {

constexpr int FewestBoxes = 2;

void FillBoxCounts(QComboBox* list, int mostBoxes, int selected) {
    list->clear();
    for (int boxes = FewestBoxes; boxes <= mostBoxes; ++boxes)
        list->addItem(QString::number(boxes));
    if (list->count() > 0)
        list->setCurrentIndex(std::clamp(selected - FewestBoxes, 0, list->count() - 1));
}

// Where nothing fits the list is empty, and the setting stays.
void StoreBoxCount(const QComboBox* list, Integer& setting) {
    if (list->count() > 0)
        setting = ToInteger(list->currentText().toInt());
}

} // namespace

GridDialog::GridDialog(QWidget* parent)
    : FormDialog(parent, "frmDefineGrid", "Define Playing Grid") {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    comFieldBoxesHorz =
        AddBoxCount(grid, 0, "FieldBoxesHorz", "Number of Horizontal Boxes to Form");
    comFieldBoxesVert = AddBoxCount(grid, 1, "FieldBoxesVert", "Number of Vertical Boxes to Form");
    grid->setRowMinimumHeight(2, 12);
    shpGridBckGrnd =
        AddColor(grid, 3, "GridBckGrnd", "Color of Background", &GridDialog::cmdGridBckGrnd_Click);
    shpGridLine =
        AddColor(grid, 4, "GridLine", "Color of Quibs and Lines", &GridDialog::cmdGridLine_Click);
    shpGridGhost =
        AddColor(grid, 5, "GridGhost", "Color of Ghost Line", &GridDialog::cmdGridGhost_Click);
    shpGridComputer = AddColor(grid, 6, "GridComputer", "Color of Computer Ghost Line",
                               &GridDialog::cmdGridComputer_Click);
    grid->setColumnStretch(0, 1);
    SetContent(grid);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QComboBox* GridDialog::AddBoxCount(QGridLayout* grid, int row, const char* name,
                                   const char* caption) {
    auto* label = new QLabel(caption, this);
    label->setObjectName(QString("lbl") + name);
    auto* list = new QComboBox(this);
    list->setObjectName(QString("com") + name);
    list->setAccessibleName(caption);
    label->setBuddy(list);
    grid->addWidget(label, row, 0);
    grid->addWidget(list, row, 1, 1, 2);
    return list;
}

Swatch* GridDialog::AddColor(QGridLayout* grid, int row, const char* name, const char* caption,
                             void (GridDialog::*cmd_Click)()) {
    auto* label = new QLabel(caption, this);
    label->setObjectName(QString("lbl") + name);
    auto* swatch = new Swatch(QString("shp") + name, caption, this);
    auto* button = new QPushButton("Color", this);
    button->setObjectName(QString("cmd") + name);
    button->setAccessibleName(QString("Choose the ") + caption);
    connect(button, &QPushButton::clicked, this, cmd_Click);
    grid->addWidget(label, row, 0);
    grid->addWidget(swatch, row, 1);
    grid->addWidget(button, row, 2);
    return swatch;
}

void GridDialog::Form_Load() {
    shpGridBckGrnd->SetFillColor(Game.BackgroundColor);
    shpGridComputer->SetFillColor(Game.ComputerGhostColor);
    shpGridLine->SetFillColor(Game.PointColor);
    shpGridGhost->SetFillColor(Game.GhostColor);
    FitGridToPicture();
    FillBoxCounts(comFieldBoxesHorz, ColumnsThatFit(), Game.GridColumns);
    FillBoxCounts(comFieldBoxesVert, RowsThatFit(), Game.GridRows);
    comFieldBoxesHorz->setFocus();
}

void GridDialog::cmdGridBckGrnd_Click() {
    PickColor(shpGridBckGrnd);
}

void GridDialog::cmdGridLine_Click() {
    PickColor(shpGridLine);
}

void GridDialog::cmdGridGhost_Click() {
    PickColor(shpGridGhost);
}

void GridDialog::cmdGridComputer_Click() {
    PickColor(shpGridComputer);
}

void GridDialog::cmdOk_Click() {
    GridSettings chosen = Game;
    chosen.BackgroundColor = shpGridBckGrnd->FillColor();
    chosen.ComputerGhostColor = shpGridComputer->FillColor();
    chosen.GhostColor = shpGridGhost->FillColor();
    chosen.PointColor = shpGridLine->FillColor();
    StoreBoxCount(comFieldBoxesHorz, chosen.GridColumns);
    StoreBoxCount(comFieldBoxesVert, chosen.GridRows);
    SetGrid(chosen);
    accept();
}
