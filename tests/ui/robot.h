// A desktop of its own for one test: a virtual screen with a window manager, the real program on
// it, and a robot that presses keys and buttons and looks at pixels.
#pragma once

#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>

#include "support/files.h"

struct ScreenPoint {
    int X, Y;
};

struct ScreenArea {
    int Left, Top, Width, Height;
};

class Robot {
public:
    // Starts screen, window manager and program, the latter in an empty directory.
    Robot();
    ~Robot();
    Robot(const Robot&) = delete;
    Robot& operator=(const Robot&) = delete;

    // Starts the program again, in the same directory, after it has ended.
    void StartProgram();

    // Presses keys like "ctrl+t", "Return" or "alt+y"; Type writes letters and digits.
    void Press(const std::string& keys);
    void Type(const std::string& text);
    void MoveTo(ScreenPoint point);
    void Click(ScreenPoint point);
    void PressCloseBox(const std::string& windowTitle);

    // 0xRRGGBB.
    unsigned PixelAt(ScreenPoint point);

    // Where the inside of the window of that title is, if it is shown.
    std::optional<ScreenArea> FindWindow(const std::string& title);

    // Tells whether it came true before the time was up.
    bool WaitFor(const std::function<bool()>& condition, double seconds = 10);
    bool WaitForWindow(const std::string& title, double seconds = 10);
    bool WaitForNoWindow(const std::string& title);

    // The exit status, or -1 when the program did not end within a second.
    int WaitForExit();
    std::string StandardError() const;

private:
    pid_t Start(std::initializer_list<const char*> words);

    void* Screen = nullptr;
    pid_t ScreenServer = -1, WindowManager = -1, Program = -1;
    TestDirectory ProgramDirectory;
};
