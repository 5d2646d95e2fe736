#include "ui/qt/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "core/state/game_state.h"
#include "display/command_states.h"
#include "display/field.h"
#include "platform/qt/field_picture.h"
#include "platform/qt/qt_desktop.h"
#include "ui/commands.h"
#include "ui/qt/file_dialogs.h"
#include "ui/qt/grid_dialog.h"
#include "ui/qt/help_viewer.h"
#include "ui/qt/line_icon.h"
#include "ui/qt/players_dialog.h"
#include "ui/qt/playing_field.h"
#include "ui/qt/status_frame.h"
#include "ui/qt/window_place.h"
#include "ui/window_layout.h"

namespace {

constexpr QSize RoomForFrame(80, 80); // a centred window keeps its title and borders on the screen
// Of the picture, in spacings: room for two boxes, and for ten with a calm margin.
constexpr int SmallestPicture = 3;
constexpr int InitialPicture = 15;
constexpr int RestMilliseconds = 400; // then the user or the desktop has done with the border

int ToPixels(int twips, int twipsPerPixel) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / twipsPerPixel));
}

QRect ToPixels(const Rectangle& twips) {
    return {ToPixels(twips.Left, Game.TwipsPerPixelX), ToPixels(twips.Top, Game.TwipsPerPixelY),
            ToPixels(twips.Width, Game.TwipsPerPixelX),
            ToPixels(twips.Height, Game.TwipsPerPixelY)};
}

// Of the toolbar's icons: 24 pixels beside letters of 10 points, and as much larger as they are, in
// steps in which the pictures are sharp.
QSize IconSize() {
    constexpr double pixelsPerPoint = 2.4;
    constexpr int step = 6;
    constexpr int smallest = 24;
    constexpr int largest = 60;
    const long steps = std::lround(QApplication::font().pointSizeF() * pixelsPerPoint / step);
    const int size = std::clamp(static_cast<int>(steps) * step, smallest, largest);
    return {size, size};
}

// In the sizes that a desktop's task bars and window lists ask for.
QIcon WindowIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addFile(QString(":/icons/%1/quiblink.png").arg(size), QSize(size, size));
    return icon;
}

// Makes the dialog when it is first asked for, so that the program starts without it.
template <class Dialog>
void OpenOrRaise(Dialog*& dialog, QWidget* parent) {
    if (dialog == nullptr)
        dialog = new Dialog(parent);
    dialog->OpenOrRaise();
}

} // namespace

MainWindow::MainWindow()
    : tbrToolBar(new QToolBar(this)), ClientArea(new QWidget(this)),
      picPlayingField(new PlayingField(ClientArea)), fraStatistics(new StatusFrame(ClientArea)) {
    setObjectName("frmQuibsMain");
    setWindowTitle("Quiblink");
    QApplication::setWindowIcon(WindowIcon());
    setCentralWidget(ClientArea);
    ClientArea->installEventFilter(this);
    fraStatistics->installEventFilter(this);
    picPlayingField->setFocus();
    BuildMenus();
    BuildToolBar();
    UseMainWindow({.Window = this,
                   .ShowControls = [this] { ShowControls(); },
                   .PlaceOfPointer = [this] { return picPlayingField->PlaceOfPointer(); },
                   .Say =
                       [this](const std::string& text) {
                           picPlayingField->Say(QString::fromStdString(text));
                       },
                   .ShowForm = [this](Form form) { ShowForm(form); },
                   .Place = [this](WindowPlace place) { Place(place); }});
    connect(picPlayingField, &PlayingField::PictureOutdated, this, &MainWindow::LayOut,
            Qt::QueuedConnection);
    ResizeRest.setSingleShot(true);
    ResizeRest.setInterval(RestMilliseconds);
    connect(&ResizeRest, &QTimer::timeout, this, [] { RunGuarded(ShowResizeWarning); });
}

void MainWindow::Open(const std::string& path) {
    PathToOpen = path;
    RunGuarded(Form_Load);
    ShowControls();
    show();
    windowHandle()->installEventFilter(this);
}

void MainWindow::EndProgram() {
    Form_Unload();
    QApplication::closeAllWindows();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (!Game.ProgramEnding)
        EndProgram();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        KeepOnScreenSoon();
    if (event->type() == QEvent::FontChange)
        tbrToolBar->setIconSize(IconSize());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        const QSize smallest = SizeAround(SmallestPicture); // the frame follows the desktop's font
        if (watched == fraStatistics && smallest.boundedTo(size()) != smallest) {
            IsToBeKept = true;
            KeepOnScreenSoon();
        }
        setMinimumSize(smallest);
        LayOut();
    }
    if (event->type() == QEvent::Expose) {
        watched->removeEventFilter(this);
        TakeFrame();
        if (!PathToOpen.empty())
            Post([this] { OpenGame(PathToOpen); });
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    AddCommand(file, Command::Open, "mnuOpen", "&Open", "Ctrl+O");
    AddCommand(file, Command::Save, "mnuSave", "&Save", "Ctrl+S");
    file->addSeparator();
    AddCommand(file, Command::Exit, "mnuExit", "E&xit", "Ctrl+X");

    QMenu* game = menuBar()->addMenu("&Game");
    AddCommand(game, Command::Start, "mnuStart", "S&tart", "Ctrl+T");
    AddCommand(game, Command::Auto, "mnuAuto", "&Auto", "Ctrl+A");
    AddCommand(game, Command::Draw, "mnuDraw", "&Draw", "Ctrl+D");
    AddCommand(game, Command::Exchange, "mnuExchange", "Exchan&ge", "Ctrl+G");
    game->addSeparator();
    AddCommand(game, Command::Hint, "mnuHint", "H&int", "Ctrl+I");
    game->addSeparator();
    AddCommand(game, Command::Pause, "mnuPause", "Pa&use", "Ctrl+U");
    game->addSeparator();
    AddCommand(game, Command::Quit, "mnuQuit", "&Quit", "Ctrl+Q");

    QMenu* options = menuBar()->addMenu("&Options");
    AddCommand(options, Command::Grid, "mnuGrid", "G&rid", "Ctrl+R");
    AddCommand(options, Command::Players, "mnuPlayers", "&Players", "Ctrl+P");
    AddCommand(options, Command::Sound, "mnuSound", "&Sound", "Ctrl+N")->setCheckable(true);

    QMenu* help = menuBar()->addMenu("&Help");
    AddCommand(help, Command::QuibsHelp, "mnuQuibsHelp", "Quibs &Help", "Ctrl+H");
    AddCommand(help, Command::History, "mnuHistory", "Quibs Histor&y", "Ctrl+Y");
    help->addSeparator();
    AddCommand(help, Command::About, "mnuAbout", "A&bout", "Ctrl+B");

    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().first()); });
}

QAction* MainWindow::AddCommand(QMenu* menu, Command command, const char* objectName,
                                const char* caption, const char* shortcut) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(objectName);
    action->setShortcut(QKeySequence(shortcut));
    action->setAutoRepeat(false);
    connect(action, &QAction::triggered, this, [this, command] { PostCommand(command); });
    Actions.at(static_cast<std::size_t>(command)) = action;
    return action;
}

QAction* MainWindow::ActionOf(Command command) const {
    return Actions.at(static_cast<std::size_t>(command));
}

void MainWindow::BuildToolBar() {
    tbrToolBar->setObjectName("tbrToolBar");
    tbrToolBar->setWindowTitle("Toolbar");
    tbrToolBar->setMovable(false);
    tbrToolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to hide the toolbar
    tbrToolBar->setIconSize(IconSize());
    addToolBar(tbrToolBar);

    const auto addButton = [this](Command command, const char* icon, const char* toolTip) {
        QAction* action = ActionOf(command);
        action->setIcon(LineIcon(icon));
        action->setIconVisibleInMenu(false);
        action->setToolTip(toolTip);
        tbrToolBar->addAction(action);
    };
    addButton(Command::Open, "open", "Open a Saved Game");
    addButton(Command::Save, "save", "Save Game");
    tbrToolBar->addSeparator();
    addButton(Command::Start, "start", "Start/Resume Game");
    addButton(Command::Pause, "pause", "Pause Game");
    addButton(Command::Quit, "quit", "Quit Game");
    tbrToolBar->addSeparator();
    addButton(Command::Auto, "auto", "Auto Start Game");
    addButton(Command::Draw, "draw", "Draw Game Grid");
    tbrToolBar->addSeparator();
    addButton(Command::Exchange, "exchange", "Exchange Players");
    tbrToolBar->addSeparator();
    addButton(Command::Hint, "hint", "Get a Hint");
}

void MainWindow::Place(WindowPlace place) {
    setMinimumSize(SizeAround(SmallestPicture));
    resize(SizeAround(InitialPicture).boundedTo(screen()->availableSize() - RoomForFrame));
    if (place == WindowPlace::Centred) {
        CentreOnScreen(*this);
    } else {
        move(screen()->geometry().topLeft());
        setWindowState(Qt::WindowMaximized);
    }
    FollowScreens();
}

void MainWindow::TakeFrame() {
    if (!isMaximized())
        CentreOnScreen(*this);
    KeepOnScreen(*this);
}

void MainWindow::KeepIfChanged() {
    IsToBeKept = IsToBeKept && !KeepOnScreen(*this);
}

void MainWindow::KeepOnScreenSoon() {
    QTimer::singleShot(RestMilliseconds, this, [this] { KeepIfChanged(); });
}

void MainWindow::FollowScreens() {
    const auto keep = [this] {
        fraStatistics->TakeSize();
        IsToBeKept = true;
        KeepIfChanged();
    };
    const auto follow = [this, keep](QScreen* screen) {
        connect(screen, &QScreen::availableGeometryChanged, this, keep);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, follow);
    // Later, when the window has found out which screen it is on now.
    connect(qGuiApp, &QGuiApplication::screenAdded, this, keep, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, keep, Qt::QueuedConnection);
}

QList<QAction*> MainWindow::KeysBesideText() const {
    QList<QAction*> actions(Actions.begin(), Actions.end());
    actions.removeOne(ActionOf(Command::Auto)); // Ctrl+A
    actions.removeOne(ActionOf(Command::Exit)); // Ctrl+X
    return actions;
}

QSize MainWindow::SizeAround(int pictureSpacings) const {
    const int picture = pictureSpacings * PixelsBetweenPoints;
    return {fraStatistics->width() + ToPixels(FrameMargin, Game.TwipsPerPixelX),
            menuBar()->sizeHint().height() + tbrToolBar->sizeHint().height() + picture +
                fraStatistics->height() + ToPixels(BottomMargin, Game.TwipsPerPixelY) + 1};
}

void MainWindow::LayOut() {
    if (ClientArea->width() <= 0)
        return;
    if (ClientArea->width() < fraStatistics->width())
        resize(fraStatistics->width() + ToPixels(FrameMargin, Game.TwipsPerPixelX), height());
    const int toolbarHeight = tbrToolBar->height();
    const WindowLayout layout = LayOutWindow(
        ClientArea->width() * Game.TwipsPerPixelX,
        (ClientArea->height() + toolbarHeight) * Game.TwipsPerPixelY,
        toolbarHeight * Game.TwipsPerPixelY, fraStatistics->width() * Game.TwipsPerPixelX,
        fraStatistics->height() * Game.TwipsPerPixelY);
    fraStatistics->move(ToPixels(layout.Frame).topLeft() - QPoint(0, toolbarHeight));
    picPlayingField->setGeometry(ToPixels(layout.Picture).translated(0, -toolbarHeight));
    TheFieldPicture.Resize(picPlayingField->size(), devicePixelRatioF());
    RunGuarded([this] { Form_Resize() ? ResizeRest.start() : ResizeRest.stop(); });
}

void MainWindow::ShowControls() {
    if (Shown == frmQuibsMain)
        return;
    Shown = frmQuibsMain;
    for (std::size_t i = 0; i < CommandCount; ++i) {
        Actions.at(i)->setEnabled(Shown.Commands.at(i).Enabled);
        if (Actions.at(i)->isCheckable())
            Actions.at(i)->setChecked(Shown.Commands.at(i).Checked);
    }
    // A game may neither be opened nor saved any more: a dialog left open must not do it either.
    if (frmFileOpen != nullptr && !IsEnabled(Command::Open))
        frmFileOpen->reject();
    if (frmFileSave != nullptr && !IsEnabled(Command::Save))
        frmFileSave->reject();
    picPlayingField->ShowControls();
    fraStatistics->ShowControls();
}

void MainWindow::PostCommand(Command command) {
    Post([command] { RunCommand(command); });
}

void MainWindow::Post(const std::function<void()>& handler) {
    const auto run = [this, handler] {
        RunGuarded(handler);
        ShowControls();
        if (Game.ProgramEnding)
            EndProgram();
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

void MainWindow::ShowForm(Form form) {
    switch (form) {
    case Form::FileOpen:
        return OpenOrRaise(frmFileOpen, this);
    case Form::FileSave:
        return OpenOrRaise(frmFileSave, this);
    case Form::DefineGrid:
        return OpenOrRaise(frmDefineGrid, this);
    case Form::DefinePlayers:
        return OpenOrRaise(frmDefinePlayers, this);
    case Form::Help:
        OpenOrRaise(frmHelp, this);
        return frmHelp->addActions(KeysBesideText());
    }
}
