// What a start of the game is measured against: a window of the same menus, icons, texts and
// picture, as a program without a game would make it.
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>
#include <vector>

namespace {

struct Entry {
    const char* Caption;
    const char* Shortcut;
    const char* Icon = nullptr;
};

struct Menu {
    const char* Caption;
    std::vector<Entry> Entries; // one without a caption separates
};

const std::vector<Menu> Menus{
    {"&File", {{"&Open", "Ctrl+O", "open"}, {"&Save", "Ctrl+S", "save"}, {}, {"E&xit", "Ctrl+X"}}},
    {"&Game",
     {{"S&tart", "Ctrl+T", "start"},
      {"&Auto", "Ctrl+A", "auto"},
      {"&Draw", "Ctrl+D", "draw"},
      {"Exchan&ge", "Ctrl+G", "exchange"},
      {},
      {"H&int", "Ctrl+I", "hint"},
      {},
      {"Pa&use", "Ctrl+U", "pause"},
      {},
      {"&Quit", "Ctrl+Q", "quit"}}},
    {"&Options", {{"G&rid", "Ctrl+R"}, {"&Players", "Ctrl+P"}, {"&Sound", "Ctrl+N"}}},
    {"&Help", {{"Quibs &Help", "Ctrl+H"}, {"Quibs Histor&y", "Ctrl+Y"}, {}, {"A&bout", "Ctrl+B"}}}};

void Fill(QMainWindow& window) {
    auto* toolbar = window.addToolBar("Toolbar");
    toolbar->setMovable(false);
    toolbar->setIconSize({24, 24});
    for (const Menu& menu : Menus) {
        QMenu* shown = window.menuBar()->addMenu(menu.Caption);
        for (const Entry& entry : menu.Entries) {
            if (entry.Caption == nullptr) {
                shown->addSeparator();
                continue;
            }
            QAction* action = shown->addAction(entry.Caption);
            action->setShortcut(QKeySequence(entry.Shortcut));
            if (entry.Icon != nullptr) {
                action->setIcon(QIcon(QString(":/icons/24/%1.png").arg(entry.Icon)));
                toolbar->addAction(action);
            }
        }
    }
}

void AddFilled(QGridLayout* grid, int row, int columns, QSize size, Qt::GlobalColor color) {
    auto* filled = new QWidget;
    filled->setPalette(QPalette(color));
    filled->setAutoFillBackground(true);
    filled->setMinimumSize(size);
    grid->addWidget(filled, row, 0, 1, columns);
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addFile(QString(":/icons/%1/quiblink.png").arg(size));
    QApplication::setWindowIcon(icon);
    QMainWindow window;
    window.setWindowTitle("Quiblink");
    Fill(window);
    auto* content = new QWidget(&window);
    auto* grid = new QGridLayout(content);
    grid->setColumnStretch(3, 1);
    AddFilled(grid, 0, 4, {540, 375}, Qt::black);
    AddFilled(grid, 1, 1, {20, 16}, Qt::black);
    AddFilled(grid, 2, 1, {20, 16}, Qt::white);
    grid->addWidget(new QLabel("Colossus:     0"), 1, 1);
    grid->addWidget(new QLabel("Intelligent"), 1, 2);
    grid->addWidget(new QLabel("Guardian:     0"), 2, 1);
    grid->addWidget(new QLabel("Average"), 2, 2);
    window.setCentralWidget(content);
    window.show();
    return QApplication::exec();
}
