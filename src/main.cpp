// Quiblink: makes the desktop and the window, and runs until the program ends.
#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <clocale>
#include <iostream>
#include <optional>
#include <string_view>

#include "core/state/game_state.h"
#include "platform/desktop.h"
#include "ui/commands.h"
#include "ui/qt/end_signals.h"
#include "ui/qt/main_window.h"

namespace {

// The last resort for a failure that no handler caught: it must not cross the toolkit.
class GuardedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        bool isHandled = false;
        RunGuarded([&] { isHandled = QApplication::notify(receiver, event); });
        return isHandled;
    }
};

// The toolkit looks for a Wayland display in the session's own directory. In a session without one
// it would make one under /tmp, say so on stderr and leave it there; one that goes again stands in.
class SessionDirectory {
public:
    SessionDirectory() {
        if (!QFileInfo(qEnvironmentVariable(Variable)).isWritable())
            qputenv(Variable, Substitute.emplace().path().toLocal8Bit());
    }
    ~SessionDirectory() {
        if (Substitute)
            qunsetenv(Variable);
    }
    SessionDirectory(const SessionDirectory&) = delete;
    SessionDirectory& operator=(const SessionDirectory&) = delete;

private:
    static constexpr const char* Variable = "XDG_RUNTIME_DIR";
    std::optional<QTemporaryDir> Substitute;
};

// In a locale that is not there the toolkit misses how letters are composed, and in a bare "C" a
// newer one misses Unicode; both say so.
void RequireLocale() {
    const bool isThere = std::setlocale(LC_ALL, "") != nullptr;
    if (!isThere || std::setlocale(LC_CTYPE, nullptr) == std::string_view("C"))
        qputenv("LC_ALL", "C.UTF-8");
}

// No screen asks for more, and no memory holds the windows that would come of much more.
void BoundScale() {
    constexpr const char* variable = "QT_SCALE_FACTOR";
    constexpr int largest = 8;
    if (qEnvironmentVariable(variable).toDouble() > largest)
        qputenv(variable, QByteArray::number(largest));
}

constexpr const char* Usage = "usage: quiblink [SAVED-GAME]\n";

int Tell(const char* text) {
    return std::cout << text << std::flush ? 0 : 1;
}

// The exit status of a call that asks for no game. A game is asked for by nothing, or by a path.
std::optional<int> AnswerArguments(int argc, char** argv) {
    if (argc < 2)
        return std::nullopt;
    const std::string_view argument = argc == 2 ? argv[1] : "";
    if (argument == "--version")
        return Tell("Quiblink " QUIBLINK_VERSION "\n");
    if (argument == "--help") {
        std::cout << Usage;
        return Tell("Opens the game's window, and in it the saved game if one is named.\n"
                    "  --help     tells this and ends\n"
                    "  --version  tells the version and ends\n");
    }
    if (!argument.empty() && argument.front() != '-')
        return std::nullopt;
    std::cerr << Usage;
    return 2;
}

} // namespace

int main(int argc, char* argv[]) {
    if (const std::optional<int> status = AnswerArguments(argc, argv))
        return *status;
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    RequireLocale();
    BoundScale();
    std::optional<SessionDirectory> directory(std::in_place);
    GuardedApplication application(argc, argv);
    directory.reset();
    QApplication::setApplicationName("Quiblink");
    QApplication::setDesktopFileName("quiblink");
    QApplication::setCursorFlashTime(0); // a blinking text cursor would keep a waiting dialog busy
    MainWindow window;
    EndOnSignals([&window] { window.EndProgram(); });
    window.Open(argc > 1 ? argv[1] : "");
    while (!Game.ProgramEnding)
        YieldToEvents(Forever);
    return 0;
}
