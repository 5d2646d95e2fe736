#include "ui/qt/directory_reader.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

namespace {

// Shared by the window and the thread that reads. The thread knows nothing else, so that it may
// outlive the window, and even the program's end.
struct Reading {
    std::filesystem::path Directory;
    QString HiddenToo;
    DirectoryContents Contents;
    int Event = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);

    Reading() = default;
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading() { close(Event); }
};

std::optional<QString> AsText(const std::filesystem::path& name) {
    QString text = QFile::decodeName(name.c_str());
    if (QFile::encodeName(text) != name.c_str())
        return std::nullopt;
    return text;
}

void ReadEntry(const std::filesystem::directory_entry& entry, Reading& reading) {
    std::error_code unreadable;
    const std::optional<QString> name = AsText(entry.path().filename());
    if (!name)
        return;
    if (name->endsWith(".qbs", Qt::CaseInsensitive) && entry.is_regular_file(unreadable))
        reading.Contents.Games.append(*name);
    else if ((!name->startsWith('.') || *name == reading.HiddenToo) &&
             entry.is_directory(unreadable))
        reading.Contents.Directories.append(*name);
}

void ReadDirectory(Reading& reading) {
    std::error_code unreadable;
    std::filesystem::directory_iterator entry(reading.Directory, unreadable);
    for (; !unreadable && entry != std::filesystem::directory_iterator();
         entry.increment(unreadable))
        ReadEntry(*entry, reading);
    reading.Contents.Directories.sort(Qt::CaseInsensitive);
    reading.Contents.Games.sort(Qt::CaseInsensitive);
    const std::uint64_t done = 1;
    [[maybe_unused]] const ssize_t written = write(reading.Event, &done, sizeof done);
}

// In the system's table of mounts blanks stand as octal numbers.
std::optional<QString> Unescape(const QByteArray& text) {
    QByteArray plain = text;
    plain.replace("\\040", " ")
        .replace("\\011", "\t")
        .replace("\\012", "\n")
        .replace("\\043", "#")
        .replace("\\134", "\\");
    return AsText(plain.constData());
}

// A line of the system's table of mounts.
struct Mount {
    QByteArray Part; // of the device, that is mounted
    QByteArray Place, Type, Device, Options;
};

std::optional<Mount> ReadMount(const QByteArray& line) {
    const qsizetype middle = line.indexOf(" - "); // before it stand columns that may be absent
    const QList<QByteArray> first = line.left(middle).split(' ');
    const QList<QByteArray> last = line.mid(middle + 3).split(' ');
    if (middle < 0 || first.size() < 5 || last.size() < 3)
        return std::nullopt;
    return Mount{first.at(3), first.at(4), last.at(0), last.at(1), last.at(2)};
}

bool IsDrive(const Mount& mount) {
    const QByteArray& type = mount.Type;
    // Mounts of the system's own, like /proc, have no device behind them.
    const bool isStorage = mount.Device.startsWith('/') || type.startsWith("nfs") ||
                           type == "cifs" || type.startsWith("fuse.ssh");
    const bool isProgram = type == "squashfs" || type == "erofs";
    const bool startsTheMachine = (mount.Place + '/').startsWith("/boot/");
    // A file or directory that shows a second time; but a volume of its own has a name, too.
    const bool isWhole =
        mount.Part == "/" || (mount.Options + ',').contains("subvol=" + mount.Part + ',');
    return isStorage && isWhole && !isProgram && !startsTheMachine;
}

} // namespace

void DirectoryReader::Read(const QString& directory, const QString& hiddenToo) {
    auto reading = std::make_shared<Reading>();
    reading->Directory = QFile::encodeName(directory).toStdString();
    reading->HiddenToo = hiddenToo;
    Waiting = std::make_unique<QSocketNotifier>(reading->Event, QSocketNotifier::Read);
    connect(Waiting.get(), &QSocketNotifier::activated, this, [this, reading] {
        Waiting->setEnabled(false);
        emit Done(reading->Contents);
    });
    std::thread([reading] { ReadDirectory(*reading); }).detach();
}

QString CurrentDirectory() {
    std::error_code gone;
    const std::filesystem::path current = std::filesystem::current_path(gone);
    return gone ? QDir::homePath() : AsText(current).value_or(QDir::homePath());
}

QStringList MountedDrives() {
    QStringList drives{"/"};
    QFile table("/proc/self/mountinfo");
    if (!table.open(QIODevice::ReadOnly))
        return drives;
    for (const QByteArray& line : table.readAll().split('\n')) {
        const std::optional<Mount> mount = ReadMount(line);
        if (!mount || !IsDrive(*mount))
            continue;
        const std::optional<QString> drive = Unescape(mount->Place);
        if (drive && !drives.contains(*drive))
            drives.append(*drive);
    }
    std::sort(drives.begin(), drives.end());
    return drives;
}
