#include "ui/qt/file_lists.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

constexpr int PathRole = Qt::UserRole;
// Of a list, in letters and lines of the desktop's font.
constexpr QSize UsualList(32, 11);
constexpr QSize SmallestList(20, 4);
constexpr int SlowReading = 200; // milliseconds

template <class List>
List* Named(List* list, const char* objectName, const char* accessibleName) {
    list->setObjectName(objectName);
    list->setAccessibleName(accessibleName);
    return list;
}

// As large as its letters ask for. Framed like a line edit when it has the focus: an empty list
// would not show it at all.
class FramedList : public QListWidget {
public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override { return InPixels(UsualList); }
    QSize minimumSizeHint() const override { return InPixels(SmallestList); }

protected:
    bool event(QEvent* event) override {
        const bool isHandled = QListWidget::event(event);
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            update();
        if (event->type() == QEvent::Paint && hasFocus()) {
            QPainter painter(this);
            painter.setPen(palette().color(QPalette::Highlight));
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
        return isHandled;
    }

private:
    QSize InPixels(QSize letters) const {
        return {letters.width() * fontMetrics().averageCharWidth(),
                letters.height() * fontMetrics().height()};
    }
};

QListWidget* MakeList(QWidget* parent, const char* objectName, const char* accessibleName) {
    auto* list = Named<QListWidget>(new FramedList(parent), objectName, accessibleName);
    list->setUniformItemSizes(true);
    return list;
}

// The mounted drive that a directory lies on.
QString DriveOf(const QString& directory, const QComboBox* drives) {
    QString longest = "/";
    for (int i = 0; i < drives->count(); ++i) {
        const QString drive = drives->itemText(i);
        if ((directory + '/').startsWith(drive + '/') && drive.size() > longest.size())
            longest = drive;
    }
    return longest;
}

// The next name on the way from a directory down to another; empty when it does not lie there.
QString StepTowards(const QString& goal, const QString& directory) {
    const QString parent = directory.endsWith('/') ? directory : directory + '/';
    return goal.startsWith(parent) ? goal.mid(parent.size()).section('/', 0, 0) : QString();
}

} // namespace

FileLists::FileLists(QWidget* parent)
    : QWidget(parent), drvDriveList(Named(new QComboBox(this), "drvDriveList", "Drives")),
      dirDirectoryList(MakeList(this, "dirDirectoryList", "Directories")),
      filFileList(MakeList(this, "filFileList", "Saved games")),
      DirectoryIcon(style()->standardIcon(QStyle::SP_DirIcon)), ReadingIsSlow(new QTimer(this)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(drvDriveList, 0, 0);
    grid->addWidget(dirDirectoryList, 1, 0);
    grid->addWidget(filFileList, 0, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    // However long the name of a drive is; opened, the list shows it whole.
    drvDriveList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    drvDriveList->view()->setTextElideMode(Qt::ElideMiddle);
    dirDirectoryList->installEventFilter(this);
    filFileList->installEventFilter(this);
    filFileList->viewport()->installEventFilter(this);
    const int iconSize =
        std::max(style()->pixelMetric(QStyle::PM_SmallIconSize), fontMetrics().height());
    dirDirectoryList->setIconSize(QSize(iconSize, iconSize));

    connect(&Reader, &DirectoryReader::Done, this, &FileLists::ShowContents);
    ReadingIsSlow->setSingleShot(true);
    ReadingIsSlow->setInterval(SlowReading);
    connect(ReadingIsSlow, &QTimer::timeout, this, &FileLists::ShowThatItTakesTime);
    connect(drvDriveList, &QComboBox::textActivated, this, &FileLists::drvDriveList_Change);
    connect(dirDirectoryList, &QListWidget::itemDoubleClicked, this,
            &FileLists::dirDirectoryList_DblClick);
    connect(filFileList, &QListWidget::itemSelectionChanged, this, &FileLists::filFileList_Click);
    // A game that was selected already.
    connect(filFileList, &QListWidget::itemClicked, this, &FileLists::filFileList_Click);
    connect(filFileList, &QListWidget::itemDoubleClicked, this, [this] { IsDoubleClicked = true; });
}

void FileLists::Load() {
    IsDoubleClicked = false;
    drvDriveList->clear();
    drvDriveList->addItems(MountedDrives());
    drvDriveList->view()->setMinimumWidth(drvDriveList->view()->sizeHintForColumn(0));
    const QString current = CurrentDirectory();
    drvDriveList->setCurrentText(DriveOf(current, drvDriveList));
    ShowDirectory(current);
    filFileList->setFocus();
}

bool FileLists::eventFilter(QObject* watched, QEvent* event) {
    // Told when the button is up again. A dialog that is gone by then loses the release, and the
    // pointer, thought to be dragging, would show no ghost line.
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(IsDoubleClicked, false))
        QMetaObject::invokeMethod(this, &FileLists::GameDoubleClicked, Qt::QueuedConnection);
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    // Return enters the directory; it must not reach the dialog's Ok.
    if (watched == dirDirectoryList && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
        dirDirectoryList_DblClick(dirDirectoryList->currentItem());
        return true;
    }
    // The first press goes to the first game; by itself the list would pass it over.
    if (watched == filFileList && key == Qt::Key_Down && filFileList->selectedItems().isEmpty()) {
        filFileList->setCurrentRow(0);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FileLists::ShowDirectory(const QString& directory) {
    ShownDirectory = directory;
    dirDirectoryList->clear();
    // The way from the root, one step deeper each.
    AddDirectory("/", "/", 0);
    QString path;
    int depth = 0;
    for (const QString& name : directory.split('/', Qt::SkipEmptyParts)) {
        path += '/' + name;
        AddDirectory(path, name, ++depth);
    }
    dirDirectoryList->setCurrentRow(depth);
    dirDirectoryList_Change();
}

void FileLists::dirDirectoryList_Change() {
    filFileList->clear();
    ReadingIsSlow->start();
    // The directory of the game is a hidden one: without the way back it could not be found again.
    Reader.Read(ShownDirectory, StepTowards(CurrentDirectory(), ShownDirectory));
}

void FileLists::ShowThatItTakesTime() {
    auto* notice = new QListWidgetItem("Reading \u2026", filFileList);
    notice->setFlags(Qt::NoItemFlags); // is no game to be chosen
}

void FileLists::ShowContents(const DirectoryContents& contents) {
    ReadingIsSlow->stop();
    filFileList->clear();
    const int depth = dirDirectoryList->count();
    const QString parent = ShownDirectory.endsWith('/') ? ShownDirectory : ShownDirectory + '/';
    for (const QString& name : contents.Directories)
        AddDirectory(parent + name, name, depth);
    filFileList->addItems(contents.Games);
}

void FileLists::AddDirectory(const QString& path, const QString& name, int depth) {
    constexpr qsizetype blanksPerStep = 3;
    auto* item = new QListWidgetItem(DirectoryIcon, QString(depth * blanksPerStep, ' ') + name);
    item->setData(PathRole, path);
    dirDirectoryList->addItem(item);
}

void FileLists::dirDirectoryList_DblClick(const QListWidgetItem* item) {
    if (item != nullptr)
        ShowDirectory(item->data(PathRole).toString());
}

void FileLists::filFileList_Click() {
    for (const QListWidgetItem* selected : filFileList->selectedItems())
        emit GameClicked(selected->text());
}
