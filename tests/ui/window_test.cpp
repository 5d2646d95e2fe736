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

    // A command that is about to be enabled may still be off when the keys arrive.
    void Open(const std::string& keys, const std::string& title) {
        ASSERT_TRUE(Screen.WaitFor([&] {
            Screen.Press(keys);
            return Screen.WaitForWindow(title, 0.3);
        }));
    }

    void Answer(const std::string& title, const std::string& keys) {
        ASSERT_TRUE(Screen.WaitForWindow(title));
        Screen.Press(keys);
        ASSERT_TRUE(Screen.WaitForNoWindow(title));
    }

    void SetGrid(const std::string& columns, const std::string& rows) {
        Open("ctrl+r", "Define Playing Grid");
        Screen.Type(columns);
        Screen.Press("Tab");
        Screen.Type(rows);
        Answer("Define Playing Grid", "Return");
    }

    // Whether all points of a field stand on the screen, with nothing left of or above the first.
    bool IsField(const ScreenField& field) {
        for (int row = 0; row <= field.Rows; ++row)
            for (int column = 0; column <= field.Columns; ++column)
                if (!IsDrawn({field.FirstPoint.X + column * Spacing,
                              field.FirstPoint.Y + row * Spacing}))
                    return false;
        return Screen.PixelAt({field.FirstPoint.X - 1, field.FirstPoint.Y}) == Background &&
               Screen.PixelAt({field.FirstPoint.X, field.FirstPoint.Y - 1}) == Background;
    }

    // The field is centred in the picture, so its first point lies half its width left of the
    // middle; how far down is seen. No columns where there is none.
    ScreenField FindField(int columns, int rows) {
        const ScreenArea window = Screen.FindWindow("Quiblink").value();
        const int left = window.Left + (window.Width - columns * Spacing) / 2;
        for (int y = window.Top + 90; y < window.Top + window.Height - 100 - rows * Spacing; ++y)
            for (const int x : {left - 1, left, left + 1})
                if (const ScreenField field{{x, y}, columns, rows}; IsField(field))
                    return field;
        return {};
    }

    // Starts a game; right after a dialog the first keys may still miss the window.
    ScreenField StartGame(std::initializer_list<const char*> keys, int columns, int rows) {
        ScreenField field;
        EXPECT_TRUE(Screen.WaitFor([&] {
            for (const char* key : keys)
                Screen.Press(key);
            return Screen.WaitFor([&] { return (field = FindField(columns, rows)).Columns > 0; },
                                  0.5);
        }));
        return field;
    }

    // A point of the playing field beside all lines.
    ScreenPoint FieldMargin() {
        const ScreenArea window = Screen.FindWindow("Quiblink").value();
        return {window.Left + window.Width / 2, window.Top + window.Height / 2 - 150};
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

    // Plays lines until so many are drawn. Each pass draws at least one.
    void PlayOn(const ScreenField& field, int lines) {
        for (int pass = 0; pass < lines && CountDrawn(field) < lines; ++pass)
            for (const ScreenPoint& middle : field.LineMiddles())
                if (CountDrawn(field) < lines && !HasFatalFailure())
                    PlayLine(middle);
        ASSERT_EQ(CountDrawn(field), lines);
    }

    Robot Screen;
    int LinesOfPerson = 0;
};

TEST_F(Window, PlaysAWholeGameOfAPersonAgainstAComputerSetInTheDialogs) {
    SetGrid("3", "2");
    Open("ctrl+p", "Define Players");
    Screen.Type("Ada");
    Screen.Press("Tab"); // the colour
    Screen.Press("Tab"); // the kind, Computer Intelligent
    Screen.Press("Up");
    Screen.Press("Up");
    Answer("Define Players", "Return");

    const ScreenField field = StartGame({"ctrl+t"}, 3, 2);
    const std::vector<ScreenPoint> lines = field.LineMiddles();
    ASSERT_EQ(lines.size(), 17U);
    PlayOn(field, static_cast<int>(lines.size()));
    EXPECT_GT(LinesOfPerson, 2);

    // The game is over: a new one begins with an empty field, and can be given up.
    Screen.Press("ctrl+t");
    EXPECT_TRUE(Screen.WaitFor([&] { return CountDrawn(field) <= 1; }));
    Open("ctrl+q", "Quit the Game");
    Answer("Quit the Game", "alt+y");
    EXPECT_TRUE(Screen.WaitFor([&] { return Screen.PixelAt(field.FirstPoint) == Background; }));
    Screen.Press("ctrl+x");
    EXPECT_EQ(Screen.WaitForExit(), 0);
}

TEST_F(Window, AnswersItsMenusByAccessKeyAndEndsWithinASecondInEveryWait) {
    SetGrid("4", "4");
    const ScreenField field = StartGame({"alt+g", "a"}, 4, 4); // Game, Auto
    EXPECT_TRUE(Screen.WaitFor([&] { return CountDrawn(field) >= 16; }));
    Open("ctrl+x", "Exit the Game");
    Answer("Exit the Game", "Escape");
    Open("ctrl+h", "Quiblink Help");
    Answer("Quiblink Help", "Return");
    Open("ctrl+y", "Quiblink History");
    const ScreenArea viewer = Screen.FindWindow("Quiblink History").value();
    Screen.Click({viewer.Left + viewer.Width - 50, viewer.Top + viewer.Height - 25}); // its Ok
    EXPECT_TRUE(Screen.WaitForNoWindow("Quiblink History"));
    Open("ctrl+r", "Define Playing Grid"); // a dialog must not keep the program alive
    Screen.PressCloseBox("Quiblink");
    EXPECT_EQ(Screen.WaitForExit(), 0);
}

TEST_F(Window, KeepsAGameAndTheSettingsInFiles) {
    SetGrid("3", "2");
    Open("ctrl+p", "Define Players");
    for (const char* keys : {"Tab", "Tab", "Up", "Up", "Tab", "Tab", "Tab", "Up"})
        Screen.Press(keys); // both are persons
    Answer("Define Players", "Return");
    const ScreenField field = StartGame({"ctrl+t"}, 3, 2);
    PlayOn(field, 5);

    Screen.Press("ctrl+u");
    Open("ctrl+s", "Save a Quibs Game");
    Screen.Type("story");
    Answer("Save a Quibs Game", "Return");
    EXPECT_TRUE(std::filesystem::exists("story.qbs"));
    Open("ctrl+q", "Quit the Game");
    Answer("Quit the Game", "alt+y");
    EXPECT_TRUE(Screen.WaitFor([&] { return CountDrawn(field) == 0; }));

    Open("ctrl+o", "Open a Quibs Game");
    Screen.Press("Tab"); // from the list of games to the path
    Screen.Type("story");
    Screen.Press("period");
    Screen.Type("qbs");
    Answer("Open a Quibs Game", "Return");
    EXPECT_TRUE(Screen.WaitFor([&] { return CountDrawn(field) == 5; }));
    Screen.Press("ctrl+t");
    PlayOn(field, static_cast<int>(field.LineMiddles().size()));

    Open("ctrl+r", "Define Playing Grid");
    for (const char* keys : {"Tab", "Tab", "space"})
        Screen.Press(keys); // the colour of the background
    ASSERT_TRUE(Screen.WaitForWindow("Select Color"));
    for (const char* keys : {"alt+h", "End", "BackSpace", "BackSpace", "a", "a"})
        Screen.Press(keys);
    Answer("Select Color", "Return");
    Answer("Define Playing Grid", "Return");
    EXPECT_TRUE(Screen.WaitFor([&] { return Screen.PixelAt(FieldMargin()) == 0x0000AA; }));
    Screen.Press("ctrl+x");
    EXPECT_EQ(Screen.WaitForExit(), 0);

    Screen.StartProgram();
    ASSERT_TRUE(Screen.WaitForWindow("Quiblink"));
    EXPECT_TRUE(Screen.WaitFor([&] { return Screen.PixelAt(FieldMargin()) == 0x0000AA; }));
}

} // namespace
