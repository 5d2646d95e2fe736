// The main window: menus, toolbar, playing field and status frame. It shows the controls' data and
// forwards every event; the rules are elsewhere.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>
#include <string>

#include "platform/controls.h"
#include "platform/desktop.h"

class GridDialog;
class HelpViewer;
class OpenDialog;
class PlayersDialog;
class PlayingField;
class QAction;
class QMenu;
class SaveDialog;
class StatusFrame;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    // Loads the game's settings, places the window on its screen and shows it; once it stands,
    // opens the saved game at `path`, unless that is empty.
    void Open(const std::string& path);

    // Ends the program: the game unwinds and every window closes.
    void EndProgram();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildMenus();
    void BuildToolBar();
    QAction* AddCommand(QMenu* menu, Command command, const char* objectName, const char* caption,
                        const char* shortcut);
    QAction* ActionOf(Command command) const;
    // The commands whose keys mean nothing else to who reads: in a text Ctrl+A selects all, and
    // Ctrl+X must not end the program.
    QList<QAction*> KeysBesideText() const;

    void Place(WindowPlace place);
    // Now that the desktop has put a title bar and borders around the window.
    void TakeFrame();
    void FollowScreens();
    // Where the user put it, a window stays, unless the screens changed or it had to grow.
    void KeepIfChanged();
    // When the desktop has done with a change of the window's size.
    void KeepOnScreenSoon();
    // Of a window as wide as the status frame asks for, around a picture of so many spacings'
    // height.
    QSize SizeAround(int pictureSpacings) const;
    void LayOut();
    void ShowControls();

    // Commands run from the event queue, never inside a menu's or button's own handler.
    void PostCommand(Command command);
    void Post(const std::function<void()>& handler);
    void ShowForm(Form form);

    std::array<QAction*, CommandCount> Actions{};
    QToolBar* tbrToolBar;
    QWidget* ClientArea;
    PlayingField* picPlayingField;
    StatusFrame* fraStatistics;
    // Made on first use.
    OpenDialog* frmFileOpen = nullptr;
    SaveDialog* frmFileSave = nullptr;
    GridDialog* frmDefineGrid = nullptr;
    PlayersDialog* frmDefinePlayers = nullptr;
    HelpViewer* frmHelp = nullptr;
    MainWindowControls Shown;
    std::string PathToOpen;  // when the window stands
    bool IsToBeKept = false; // on its screen, as soon as it is neither maximised nor minimised
    QTimer ResizeRest;       // runs while the field does not fit, until the user is warned
};
