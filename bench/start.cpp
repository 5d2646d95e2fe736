// What a start costs: the time until the window is on the screen, then processor time and memory as
// soon as the program is at rest. Starts two programs in turn on the screen that DISPLAY names,
// where nothing else may open windows meanwhile, and prints the medians. usage: start
// STARTS-OF-EACH PROGRAM OTHER-PROGRAM
#include <X11/Xlib.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Costs {
    std::vector<double> Window, Processor; // milliseconds
    std::vector<double> Memory;            // KiB of its own, with its share of what is shared
};

// The first window that comes up on the screen. Its events are asked for as soon as it is made.
void AwaitWindow(Display* screen) {
    for (;;) {
        XEvent event;
        XNextEvent(screen, &event);
        if (event.type == CreateNotify && event.xcreatewindow.override_redirect == False) {
            const Window made = event.xcreatewindow.window;
            XSelectInput(screen, made, StructureNotifyMask);
            XWindowAttributes now{};
            if (XGetWindowAttributes(screen, made, &now) != 0 && now.map_state == IsViewable)
                return;
        }
        if (event.type == MapNotify && event.xmap.event == event.xmap.window)
            return;
    }
}

double ProcessorMilliseconds(pid_t process) {
    clockid_t clock{};
    timespec used{};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0)
        throw std::runtime_error("the program has ended");
    const auto sum = std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
    return std::chrono::duration<double, std::milli>(sum).count();
}

// Nothing tells when a program has nothing more to do: its clock stands still.
double AwaitRest(pid_t process) {
    double before = 0;
    double now = 0;
    do {
        before = now;
        usleep(600'000);
        now = ProcessorMilliseconds(process);
    } while (now != before);
    return now;
}

double MemoryOf(pid_t process) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string word; rollup >> word;)
        if (double kibibytes = 0; word == "Pss:" && rollup >> kibibytes)
            return kibibytes;
    throw std::runtime_error("the system does not tell the memory of a program");
}

void Start(Display* screen, const char* program, Costs& costs) {
    XSync(screen, True); // what the last one still sent is forgotten
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    std::string name = program;
    std::array<char*, 2> arguments{name.data(), nullptr};
    if (posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error(name + " cannot be started");
    AwaitWindow(screen);
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    costs.Window.push_back(taken.count());
    costs.Processor.push_back(AwaitRest(process));
    costs.Memory.push_back(MemoryOf(process));
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void Tell(const char* what, const std::vector<double>& first, const std::vector<double>& second) {
    std::printf("%-20s %10.1f %10.1f %8.3f\n", what, Median(first), Median(second),
                Median(first) / Median(second));
}

} // namespace

int main(int argc, char* argv[]) {
    Display* screen = XOpenDisplay(nullptr);
    if (argc != 4 || screen == nullptr) {
        std::fputs("usage: start STARTS-OF-EACH PROGRAM OTHER-PROGRAM, with a DISPLAY\n", stderr);
        return 2;
    }
    // A window may be gone when it is asked about.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    XSelectInput(screen, DefaultRootWindow(screen), SubstructureNotifyMask);
    Costs first, second;
    const int starts = std::max(1, std::atoi(argv[1]));
    for (int i = 0; i < starts; ++i) {
        Start(screen, argv[2], first);
        Start(screen, argv[3], second);
    }
    Tell("window, ms", first.Window, second.Window);
    Tell("processor, ms", first.Processor, second.Processor);
    Tell("memory (PSS), KiB", first.Memory, second.Memory);
}
