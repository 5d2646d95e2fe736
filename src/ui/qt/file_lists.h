// The lists of drives, directories and saved games that both file dialogs show. Each follows the
// one before it.
#pragma once

#include <QIcon>
#include <QWidget>

#include "ui/qt/directory_reader.h"

class QComboBox;
class QListWidget;
class QListWidgetItem;
class QTimer;

class FileLists : public QWidget {
    Q_OBJECT

public:
    explicit FileLists(QWidget* parent);

    // Begins again at the current directory, with the focus on its games.
    void Load();

    // The directory whose games are listed.
    QString Directory() const { return ShownDirectory; }

signals:
    void GameClicked(const QString& name);
    void GameDoubleClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drvDriveList_Change(const QString& drive) { ShowDirectory(drive); }
    void dirDirectoryList_Change();
    void dirDirectoryList_DblClick(const QListWidgetItem* item);
    void filFileList_Click();

    void ShowDirectory(const QString& directory);
    void ShowContents(const DirectoryContents& contents);
    void ShowThatItTakesTime();
    void AddDirectory(const QString& path, const QString& name, int depth);

    QComboBox* drvDriveList;
    QListWidget* dirDirectoryList;
    QListWidget* filFileList;
    QIcon DirectoryIcon; // made once: a style reads it from its files each time it is asked
    DirectoryReader Reader;
    QTimer* ReadingIsSlow;
    QString ShownDirectory;
    bool IsDoubleClicked = false; // a game, whose button is still down
};
