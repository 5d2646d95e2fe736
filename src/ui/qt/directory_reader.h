// Reads directories in the background, so that a dead network drive never stops the window.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <memory>

struct DirectoryContents {
    QStringList Directories; // names, sorted; hidden ones left out
    QStringList Games;       // names of the regular files ending in ".qbs" in any case, sorted
};

class DirectoryReader : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Returns at once; what an earlier call was still reading is forgotten.
    void Read(const QString& directory);

signals:
    // An unreadable directory is empty.
    void Done(const DirectoryContents& contents);

private:
    std::unique_ptr<QSocketNotifier> Waiting;
};

// Where drives are mounted, "/" first. Asks none of them, so that a dead one does no harm.
QStringList MountedDrives();
