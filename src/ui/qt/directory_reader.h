// Reads directories in the background, so that a dead network drive never stops the window.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QStringList>
#include <memory>

// Sorted. Names that are no text are left out, for a file could not be found again by one.
struct DirectoryContents {
    QStringList Directories; // without the hidden ones, but for the one that is asked for
    QStringList Games;       // the regular files ending in ".qbs" in any case
};

class DirectoryReader : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Returns at once; what an earlier call was still reading is forgotten.
    void Read(const QString& directory, const QString& hiddenToo);

signals:
    // An unreadable directory is empty.
    void Done(const DirectoryContents& contents);

private:
    std::unique_ptr<QSocketNotifier> Waiting;
};

// Where the program runs. When that directory is gone, or its name is no text: the user's home.
QString CurrentDirectory();

// Where what a user calls a drive is mounted, "/" first: no part of another drive, no image of a
// program, nothing of the system's own. Asks none of them, so that a dead one does no harm.
QStringList MountedDrives();
