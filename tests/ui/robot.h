// A desktop of its own for one test: a virtual screen with a window manager, the real program on
// it in an empty directory, and a robot that presses keys and buttons and looks at pixels.
#pragma once

#include <QDeadlineTimer>
#include <QProcess>
#include <QRect>
#include <QThread>

#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/files.h"

// After the others, for the macros of X take common words. xdo.h does not say that it is C.
#include <X11/Xutil.h>
extern "C" {
#include <xdo.h>
}

class Robot {
public:
    Robot() {
        const std::string number =
            StartAndHear(ScreenServer, "Xvfb", {"-displayfd", "1", "-screen", "0", "1280x900x24"});
        setenv("DISPLAY", (":" + number).c_str(), 1);
        setenv("XDG_RUNTIME_DIR", Directory.Path.c_str(), 1);
        setenv("XDG_DATA_HOME", Directory.Path.c_str(), 1);
        setenv("XDG_CONFIG_HOME", Directory.Path.c_str(), 1); // where openbox finds no settings
        StartAndHear(WindowManager, "openbox", {"--sm-disable", "--startup", "echo ready"});
        Hand = xdo_new(nullptr);
        if (Hand == nullptr)
            throw std::runtime_error("the virtual screen does not answer");
        // The focused window may be gone when it is asked for its name.
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
        Program.setStandardErrorFile("stderr", QIODevice::Append);
        StartProgram();
    }
    ~Robot() {
        xdo_free(Hand);
        for (QProcess* process : {&Program, &WindowManager, &ScreenServer}) {
            process->kill();
            process->waitForFinished();
        }
    }

    // The one that was built, or another to be tried, such as the installed one.
    void StartProgram(const QStringList& arguments = {}) {
        Program.start(qEnvironmentVariable("QUIBLINK_PROGRAM", QUIBLINK_PROGRAM), arguments);
    }

    // The exit status, or -1 if the program did not end in time or crashed.
    int WaitForExit() {
        const bool hasEnded = Program.waitForFinished(60'000);
        return hasEnded && Program.exitStatus() == QProcess::NormalExit ? Program.exitCode() : -1;
    }

    // Of all runs of the program.
    static std::string StandardError() { return BytesOf("stderr"); }

    // Starts a program that writes a line when it is ready, and tells that line.
    static std::string StartAndHear(QProcess& process, const char* program,
                                    const QStringList& arguments) {
        process.start(program, arguments);
        process.waitForReadyRead();
        return process.readLine().trimmed().toStdString();
    }

    // Tells whether it came true before the time was up.
    static bool WaitFor(const std::function<bool()>& condition, int milliseconds = 60'000) {
        const QDeadlineTimer end(milliseconds);
        while (!condition()) {
            if (end.hasExpired())
                return false;
            QThread::msleep(10);
        }
        return true;
    }

    // For what a story cannot go on without.
    static void Await(const std::string& what, const std::function<bool()>& condition) {
        if (!WaitFor(condition))
            throw std::runtime_error("waited in vain for " + what);
    }

    // For what the program may not yet be ready for: acts again, but not as fast as a double click.
    static void ActUntil(const std::string& what, const std::function<bool()>& condition,
                         const std::function<void()>& act) {
        Await(what, [&] {
            act();
            return WaitFor(condition, 600);
        });
    }

    // Again and again, for a window that is new may still take a place and a size of its own.
    void ResizeWindow(QSize size) {
        const auto isResized = [&] { return FocusedArea().size() == size; };
        ActUntil("the window's size", isResized, [&] {
            xdo_set_window_size(Hand, FocusedWindow(), size.width(), size.height(), 0);
        });
    }

    // To 800 by 500.
    static void ShrinkScreen() {
        for (const char* change : {"--newmode small 50 800 800 800 800 500 500 500 500",
                                   "--addmode screen small", "--output screen --mode small"})
            QProcess::execute("xrandr", QString(change).split(' '));
    }

    // Presses keys one after another, as in "ctrl+t" or "alt+g a".
    void Press(const std::string& keys) {
        for (const QString& chord : QString::fromStdString(keys).split(' ')) {
            std::vector<charcodemap_t> held;
            for (const QString& name : chord.split('+'))
                held.emplace_back().code = KeyOf(name.toStdString());
            for (const int isPressed : {1, 0})
                xdo_send_keysequence_window_list_do(Hand, CURRENTWINDOW, held.data(),
                                                    static_cast<int>(held.size()), isPressed,
                                                    nullptr, 0);
        }
    }

    void MoveTo(QPoint point) { xdo_move_mouse(Hand, point.x(), point.y(), 0); }

    void Click(QPoint point) {
        MoveTo(point);
        xdo_click_window(Hand, CURRENTWINDOW, 1);
    }

    // 0xRRGGBB.
    unsigned long PixelAt(QPoint point) {
        unsigned long color = 0;
        ForEachPixel({point, QSize(1, 1)}, [&](QPoint, unsigned long found) { color = found; });
        return color;
    }

    // The smallest rectangle round everything of a colour inside the focused window.
    QRect AreaOf(unsigned long color) {
        QRect area;
        ForEachPixel(FocusedArea(), [&](QPoint point, unsigned long found) {
            if (found == color)
                area |= QRect(point, QSize(1, 1));
        });
        return area;
    }

    // The title of the window that has the keyboard.
    std::string FocusedTitle() {
        char* name = nullptr;
        XFetchName(Hand->xdpy, FocusedWindow(), &name);
        std::string title = name == nullptr ? "" : name;
        XFree(name);
        return title;
    }

    // Where the inside of that window is.
    QRect FocusedArea() {
        XWindowAttributes inside{};
        XGetWindowAttributes(Hand->xdpy, FocusedWindow(), &inside);
        Window child = 0;
        XTranslateCoordinates(Hand->xdpy, FocusedWindow(), inside.root, 0, 0, &inside.x, &inside.y,
                              &child);
        return {inside.x, inside.y, inside.width, inside.height};
    }

private:
    // The bare key. By its symbol xdo presses Alt with some that have another meaning with it.
    KeyCode KeyOf(const std::string& name) {
        const char* symbol = name == "ctrl" ? "Control_L" : name == "alt" ? "Alt_L" : name.c_str();
        return XKeysymToKeycode(Hand->xdpy, XStringToKeysym(symbol));
    }

    template <class Look>
    void ForEachPixel(QRect area, Look look) {
        XImage* image = XGetImage(Hand->xdpy, DefaultRootWindow(Hand->xdpy), area.x(), area.y(),
                                  area.width(), area.height(), AllPlanes, ZPixmap);
        if (image == nullptr)
            throw std::runtime_error("no such place on the screen");
        for (int y = 0; y < area.height(); ++y)
            for (int x = 0; x < area.width(); ++x)
                look(area.topLeft() + QPoint(x, y), XGetPixel(image, x, y));
        XDestroyImage(image);
    }

    Window FocusedWindow() {
        Window window = 0;
        int revertsTo = 0;
        XGetInputFocus(Hand->xdpy, &window, &revertsTo);
        return window;
    }

    TestDirectory Directory;
    QProcess ScreenServer, WindowManager, Program;
    xdo_t* Hand = nullptr;
};
