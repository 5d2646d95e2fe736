// Stories in the real window: keys and pointer go in, pixels come out.
#include <gtest/gtest.h>

#include <vector>

#include "ui/robot.h"

namespace {

constexpr unsigned Background = 0x000000; // the built-in colours
constexpr unsigned Drawn = 0xFFFFFF;
constexpr unsigned Ghost = 0xFF0000;
constexpr int Spacing = 25;

// A field as it stands on the screen, and the points where its lines can be looked at.
struct ScreenField {
    ScreenPoint FirstPoint{};
    int Columns = 0, Rows = 0;

    std::vector<ScreenPoint> LineMiddles() const {
        std::vector<ScreenPoint> middles;
        for (int row = 0; row <= Rows; ++row)
            for (int column = 0; column <= Columns; ++column) {
                const ScreenPoint point{FirstPoint.X + column * Spacing,
                                        FirstPoint.Y + row * Spacing};
                if (column < Columns)
                    middles.push_back({point.X + Spacing / 2, point.Y});
                if (row < Rows)
                    middles.push_back({point.X, point.Y + Spacing / 2});
            }
        return middles;
    }
};

class Window : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(Screen.WaitForWindow("Quiblink")); }

    void TearDown() override { EXPECT_EQ(Screen.StandardError(), ""); }

    void Answer(const std::string& title, const std::string& keys) {
        ASSERT_TRUE(Screen.WaitForWindow(title));
        Screen.Press(keys);
        ASSERT_TRUE(Screen.WaitForNoWindow(title));
    }

    void SetGrid(const std::string& columns, const std::string& rows) {
        Screen.Press("ctrl+r");
        ASSERT_TRUE(Screen.WaitForWindow("Define Playing Grid"));
        Screen.Type(columns);
        Screen.Press("Tab");
        Screen.Type(rows);
        Answer("Define Playing Grid", "Return");
    }

    // The colour at the very middle of a field, whose left upper point is one of few pixels.
    ScreenField FindField(int columns, int rows) {
        const ScreenArea window = Screen.FindWindow("Quiblink").value();
        const auto isPoint = [&](int x, int y) {
            return Screen.PixelAt({x, y}) == Drawn && Screen.PixelAt({x - 1, y}) == Background &&
                   Screen.PixelAt({x, y - 1}) == Background;
        };
        // The field is centred in the picture, so its first point lies left of the middle.
        const int middle = window.Left + window.Width / 2;
        const int width = columns * Spacing;
        for (int y = window.Top + 90; y < window.Top + window.Height - 100; ++y)
            for (int x = middle - width / 2 - 1; x <= middle - width / 2 + 1; ++x)
                if (isPoint(x, y))
                    return {{x, y}, columns, rows};
        return {};
    }

    bool IsDrawn(ScreenPoint middle) { return Screen.PixelAt(middle) == Drawn; }

    int CountDrawn(const ScreenField& field) {
        int drawn = 0;
        for (const ScreenPoint& middle : field.LineMiddles())
            drawn += IsDrawn(middle) ? 1 : 0;
        return drawn;
    }

    // Draws the line if it is the person's turn, else waits until the computer has drawn it. A
    // refused line is left for later.
    void PlayLine(ScreenPoint middle) {
        ASSERT_TRUE(Screen.WaitFor([&] {
            Screen.MoveTo({middle.X + 1, middle.Y + 1});
            Screen.MoveTo(middle);
            return IsDrawn(middle) || Screen.PixelAt(middle) == Ghost;
        }));
        if (IsDrawn(middle))
            return;
        Screen.Click(middle);
        ASSERT_TRUE(Screen.WaitFor(
            [&] { return IsDrawn(middle) || Screen.FindWindow("Illegal Move").has_value(); }));
        if (IsDrawn(middle))
            ++LinesOfPerson;
        else
            Answer("Illegal Move", "Return");
    }

    Robot Screen;
    int LinesOfPerson = 0;
};

TEST_F(Window, PlaysAWholeGameOfAPersonAgainstAComputerSetInTheDialogs) {
    SetGrid("3", "2");
    Screen.Press("ctrl+p");
    ASSERT_TRUE(Screen.WaitForWindow("Define Players"));
    Screen.Type("Ada");
    Screen.Press("Tab"); // the colour
    Screen.Press("Tab"); // the kind, Computer Intelligent
    Screen.Press("Up");
    Screen.Press("Up");
    Answer("Define Players", "Return");

    Screen.Press("ctrl+t");
    ScreenField field;
    ASSERT_TRUE(Screen.WaitFor([&] {
        field = FindField(3, 2);
        return field.Columns > 0;
    }));
    const std::vector<ScreenPoint> lines = field.LineMiddles();
    ASSERT_EQ(lines.size(), 17U);
    while (CountDrawn(field) < static_cast<int>(lines.size()))
        for (const ScreenPoint& middle : lines) {
            ASSERT_NO_FATAL_FAILURE(PlayLine(middle));
        }
    EXPECT_GT(LinesOfPerson, 2);

    // The game is over: a new one begins with an empty field, and can be given up.
    Screen.Press("ctrl+t");
    EXPECT_TRUE(Screen.WaitFor([&] { return CountDrawn(field) <= 1; }));
    Screen.Press("ctrl+q");
    Answer("Quit the Game", "alt+y");
    EXPECT_TRUE(Screen.WaitFor([&] { return Screen.PixelAt(field.FirstPoint) == Background; }));
    Screen.Press("ctrl+x");
    EXPECT_EQ(Screen.WaitForExit(), 0);
}

TEST_F(Window, AnswersItsMenusByAccessKeyAndEndsWithinASecondInEveryWait) {
    SetGrid("4", "4");
    Screen.Press("alt+g");
    Screen.Press("a"); // Auto
    ScreenField field;
    ASSERT_TRUE(Screen.WaitFor([&] {
        field = FindField(4, 4);
        return field.Columns > 0 && CountDrawn(field) >= 16;
    }));
    Screen.Press("ctrl+x");
    Answer("Exit the Game", "Escape");
    Screen.Press("ctrl+r"); // a dialog must not keep the program alive
    ASSERT_TRUE(Screen.WaitForWindow("Define Playing Grid"));
    Screen.PressCloseBox("Quiblink");
    EXPECT_EQ(Screen.WaitForExit(), 0);
}

} // namespace
