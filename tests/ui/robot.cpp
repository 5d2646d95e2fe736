#include "ui/robot.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;

Display* Of(void* screen) {
    return static_cast<Display*>(screen);
}

void End(pid_t process) {
    if (process <= 0)
        return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

// Tells `visit` every window below `window` that is shown; stops when that returns true.
bool VisitWindows(Display* screen, Window window, const std::function<bool(Window)>& visit) {
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (XQueryTree(screen, window, &root, &parent, &children, &count) == 0)
        return false;
    const std::vector<Window> copied(children, children + count);
    XFree(children);
    for (const Window child : copied) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(screen, child, &attributes) != 0 &&
            attributes.map_state == IsViewable &&
            (visit(child) || VisitWindows(screen, child, visit)))
            return true;
    }
    return false;
}

std::optional<Window> WindowOf(Display* screen, const std::string& title) {
    std::optional<Window> found;
    VisitWindows(screen, DefaultRootWindow(screen), [&](Window window) {
        char* name = nullptr;
        if (XFetchName(screen, window, &name) == 0 || name == nullptr)
            return false;
        if (title == name)
            found = window;
        XFree(name);
        return found.has_value();
    });
    return found;
}

} // namespace

Robot::Robot() {
    // Windows come and go between two questions about them.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    setenv("XDG_RUNTIME_DIR", ProgramDirectory.Path.c_str(), 1);

    int numberPipe[2];
    if (pipe(numberPipe) != 0)
        throw std::runtime_error("no pipe");
    const std::string descriptor = std::to_string(numberPipe[1]);
    ScreenServer = Start({"Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "1280x900x24",
                          "-nolisten", "tcp", "-noreset"});
    close(numberPipe[1]);
    char number[16] = {};
    if (read(numberPipe[0], number, sizeof number - 1) <= 0)
        throw std::runtime_error("no virtual screen");
    close(numberPipe[0]);
    setenv("DISPLAY", (":" + std::to_string(std::stoi(number))).c_str(), 1);
    Screen = XOpenDisplay(nullptr);
    if (Screen == nullptr)
        throw std::runtime_error("the virtual screen does not answer");

    WindowManager = Start({"openbox", "--sm-disable"});
    const Atom managed = XInternAtom(Of(Screen), "_NET_SUPPORTING_WM_CHECK", False);
    WaitFor([&] {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long rest = 0;
        unsigned char* value = nullptr;
        XGetWindowProperty(Of(Screen), DefaultRootWindow(Of(Screen)), managed, 0, 1, False,
                           AnyPropertyType, &type, &format, &count, &rest, &value);
        if (value != nullptr)
            XFree(value);
        return count > 0;
    });
    StartProgram();
}

void Robot::StartProgram() {
    Program = Start({QUIBLINK_PROGRAM});
}

Robot::~Robot() {
    End(Program);
    End(WindowManager);
    if (Screen != nullptr)
        XCloseDisplay(Of(Screen));
    End(ScreenServer);
}

pid_t Robot::Start(std::initializer_list<const char*> words) {
    const pid_t process = fork();
    if (process != 0)
        return process;
    std::vector<char*> arguments;
    for (const char* word : words)
        arguments.push_back(const_cast<char*>(word));
    arguments.push_back(nullptr);
    const std::string program = std::filesystem::path(arguments[0]).filename();
    const int errors = open((program + ".stderr").c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
    dup2(errors, STDERR_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

void Robot::Press(const std::string& keys) {
    std::vector<KeyCode> codes;
    std::istringstream parts(keys);
    for (std::string part; std::getline(parts, part, '+');) {
        if (part == "ctrl")
            part = "Control_L";
        else if (part == "alt")
            part = "Alt_L";
        else if (part == "shift")
            part = "Shift_L";
        codes.push_back(XKeysymToKeycode(Of(Screen), XStringToKeysym(part.c_str())));
    }
    for (auto code = codes.begin(); code != codes.end(); ++code)
        XTestFakeKeyEvent(Of(Screen), *code, True, 0);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code)
        XTestFakeKeyEvent(Of(Screen), *code, False, 0);
    XSync(Of(Screen), False);
}

void Robot::Type(const std::string& text) {
    for (const char letter : text)
        Press((std::isupper(letter) != 0 ? "shift+" : "") + std::string(1, letter));
}

void Robot::MoveTo(ScreenPoint point) {
    XTestFakeMotionEvent(Of(Screen), -1, point.X, point.Y, 0);
    XSync(Of(Screen), False);
}

void Robot::Click(ScreenPoint point) {
    MoveTo(point);
    XTestFakeButtonEvent(Of(Screen), 1, True, 0);
    XTestFakeButtonEvent(Of(Screen), 1, False, 0);
    XSync(Of(Screen), False);
}

void Robot::PressCloseBox(const std::string& windowTitle) {
    const std::optional<Window> window = WindowOf(Of(Screen), windowTitle);
    if (!window)
        throw std::runtime_error("no window to close: " + windowTitle);
    XEvent message{};
    message.xclient.type = ClientMessage;
    message.xclient.window = *window;
    message.xclient.message_type = XInternAtom(Of(Screen), "_NET_CLOSE_WINDOW", False);
    message.xclient.format = 32;
    XSendEvent(Of(Screen), DefaultRootWindow(Of(Screen)), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &message);
    XSync(Of(Screen), False);
}

unsigned Robot::PixelAt(ScreenPoint point) {
    XImage* image = XGetImage(Of(Screen), DefaultRootWindow(Of(Screen)), point.X, point.Y, 1, 1,
                              AllPlanes, ZPixmap);
    if (image == nullptr)
        throw std::runtime_error("no such pixel on the screen");
    const unsigned pixel = static_cast<unsigned>(XGetPixel(image, 0, 0)) & 0xFFFFFFU;
    XDestroyImage(image);
    return pixel;
}

std::optional<ScreenArea> Robot::FindWindow(const std::string& title) {
    const std::optional<Window> window = WindowOf(Of(Screen), title);
    XWindowAttributes inside;
    if (!window || XGetWindowAttributes(Of(Screen), *window, &inside) == 0)
        return std::nullopt;
    int left = 0;
    int top = 0;
    Window child = 0;
    XTranslateCoordinates(Of(Screen), *window, DefaultRootWindow(Of(Screen)), 0, 0, &left, &top,
                          &child);
    return ScreenArea{left, top, inside.width, inside.height};
}

bool Robot::WaitFor(const std::function<bool()>& condition, double seconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

bool Robot::WaitForWindow(const std::string& title, double seconds) {
    return WaitFor([&] { return FindWindow(title).has_value(); }, seconds);
}

bool Robot::WaitForNoWindow(const std::string& title) {
    return WaitFor([&] { return !FindWindow(title).has_value(); });
}

int Robot::WaitForExit() {
    int status = -1;
    const auto end = std::chrono::steady_clock::now() + 1s;
    while (waitpid(Program, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > end)
            return -1;
        std::this_thread::sleep_for(5ms);
    }
    Program = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string Robot::StandardError() const {
    return BytesOf(ProgramDirectory.Path + "/quiblink.stderr");
}
