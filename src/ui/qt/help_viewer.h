// Shows the help or the history document of the current directory.
#pragma once

#include "ui/qt/window_place.h"

class QTextBrowser;

class HelpViewer : public PlacedDialog {
    Q_OBJECT

public:
    explicit HelpViewer(QWidget* parent);

    // Loads the document that `ShowHistory` asks for and raises the viewer. A missing document
    // leaves it empty. First it comes up beside the game, so that one can read and play.
    void OpenOrRaise();

private:
    void Form_Load();
    void cmdOk_Click() { accept(); }

    QTextBrowser* rtfHelp;
};
