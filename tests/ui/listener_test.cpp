// A game played by ear and by keys: what is not heard on the accessibility bus is not known.
#include <atspi/atspi.h>

#include <gtest/gtest.h>

#include <deque>

#include "ui/robot.h"

namespace {

// The bus on which programs talk to screen readers, with one that listens.
class Listener {
protected:
    Listener() {
        setenv("XDG_RUNTIME_DIR", Directory.Path.c_str(), 1);
        const std::string address =
            Robot::StartAndHear(Bus, "dbus-daemon", {"--session", "--nofork", "--print-address"});
        setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
        setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
        atspi_init();
        atspi_event_listener_register_from_callback(Hear, this, nullptr,
                                                    "object:state-changed:focused", nullptr);
    }
    ~Listener() {
        Bus.kill();
        Bus.waitForFinished();
    }

    // What is said next, or next and with `part` in it.
    std::string Next(const std::string& part = "") {
        std::string saying;
        Robot::Await("a saying with " + part, [&] {
            while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
            }
            while (!Sayings.empty()) {
                saying = Sayings.front();
                Sayings.pop_front();
                if (saying.find(part) != std::string::npos)
                    return true;
            }
            return false;
        });
        return saying;
    }

    // Role and name of an object that shows and of all that shows in it.
    static std::string Showing(AtspiAccessible* object) {
        AtspiStateSet* states = atspi_accessible_get_state_set(object);
        std::string text;
        if (atspi_state_set_contains(states, ATSPI_STATE_SHOWING) != FALSE ||
            atspi_accessible_get_role(object, nullptr) == ATSPI_ROLE_APPLICATION)
            text = Take(atspi_accessible_get_role_name(object, nullptr)) + ' ' + NameOf(object) +
                   (atspi_state_set_contains(states, ATSPI_STATE_EDITABLE) != FALSE ? " editable"
                                                                                    : "") +
                   '\n';
        for (int i = 0; i < atspi_accessible_get_child_count(object, nullptr); ++i)
            text += Showing(atspi_accessible_get_child_at_index(object, i, nullptr));
        return text;
    }

private:
    static std::string Take(gchar* text) {
        const std::string taken = text == nullptr ? "" : text;
        g_free(text);
        return taken;
    }

    static std::string NameOf(AtspiAccessible* object) {
        atspi_accessible_clear_cache(object);
        return Take(atspi_accessible_get_name(object, nullptr));
    }

    static void Hear(AtspiEvent* event, void* listener) {
        if (event->detail1 == 1)
            static_cast<Listener*>(listener)->Sayings.push_back(NameOf(event->source)), std::cout << "(" << NameOf(event->source) << ")\n";
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }

    TestDirectory Directory;
    QProcess Bus;
    std::deque<std::string> Sayings;
};

class ByEar : public ::testing::Test, protected Listener, protected Robot {};

TEST_F(ByEar, APersonPlaysAGameAgainstAComputer) {
    Next("Playing field");
    std::cout << Showing(atspi_accessible_get_child_at_index(atspi_get_desktop(0), 0, nullptr));
    Press("ctrl+r");
    Next("10");
    Press("3 Tab 2 Return");
    Next("Playing field");
    Press("ctrl+p");
    Next();
    Press("Tab Tab Up Up Tab Tab Tab Down Down Return");
    Next("Playing field");
    Press("ctrl+t");
    std::string news = Next("Colossus's Turn");
    Press("Left");
    for (std::string line = Next(); line.find("across, row 1,") == std::string::npos; line = Next())
        Press(line.starts_with("across") ? "Up" : "space");
    Press("Return");
    while (news = Next(), news.find("Turn") != std::string::npos) {
        std::cout << news << "\n";
        Press("Left");
        std::cout << Next("row") << "\n";
        Press("Return");
    }
    std::cout << news << "\n";
    Press("ctrl+x");
    EXPECT_EQ(WaitForExit(), 0);
    EXPECT_EQ(StandardError(), "");
}

} // namespace
