// Stories in the real window: keys and pointer go in, pixels come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "ui/robot.h"

namespace {

constexpr unsigned Background = 0x000000; // the built-in colours
constexpr unsigned Drawn = 0xFFFFFF;
constexpr unsigned Ghost = 0xFF0000;
constexpr int Spacing = 25;

// Where the points of a field are on the screen, and the middles of its lines.
struct ScreenField {
    std::vector<ScreenPoint> Points, Lines;
};

ScreenField FieldAt(ScreenPoint first, int columns, int rows) {
    ScreenField field;
    for (int row = 0; row <= rows; ++row)
        for (int column = 0; column <= columns; ++column) {
            const ScreenPoint point{first.X + column * Spacing, first.Y + row * Spacing};
            field.Points.push_back(point);
            if (column < columns)
                field.Lines.push_back({point.X + Spacing / 2, point.Y});
            if (row < rows)
                field.Lines.push_back({point.X, point.Y + Spacing / 2});
        }
    return field;
}

class RealWindow : public ::testing::Test, protected Robot {
protected:
    void SetUp() override { WaitForFocus("Quiblink"); }

    void TearDown() override { EXPECT_EQ(StandardError(), ""); }

    void WaitForFocus(const std::string& title) {
        Await(title, [&] { return FocusedTitle() == title; });
    }

    // A command that is about to be enabled may still be off when the keys arrive.
    void Open(const std::string& keys, const std::string& title) {
        const auto hasOpened = [&] { return FocusedTitle() == title; };
        Await(title, [&] {
            Press(keys);
            return WaitFor(hasOpened, 1000);
        });
    }

    void Answer(const std::string& title, const std::string& keys,
                const std::string& next = "Quiblink") {
        WaitForFocus(title);
        Press(keys);
        WaitForFocus(next);
    }

    void SetGrid(const std::string& keys) {
        Open("ctrl+r", "Define Playing Grid");
        Answer("Define Playing Grid", keys);
    }

    void SetPlayers(const std::string& keys) {
        Open("ctrl+p", "Define Players");
        Answer("Define Players", keys);
    }

    void QuitGame() {
        Open("ctrl+q", "Quit the Game");
        Answer("Quit the Game", "alt+y");
        Await("the cleared field", [&] { return !IsDrawn(Field.Points.front()); });
    }

    void StartGame(const std::string& keys, int columns, int rows) {
        Press(keys);
        Await("the field", [&] { return FindField(columns, rows); });
    }

    // The field is centred in the picture: its left is known, and its top is searched for.
    bool FindField(int columns, int rows) {
        const ScreenArea window = FocusedArea();
        const int left = window.Left + (window.Width - columns * Spacing) / 2;
        for (int top = window.Top; top < window.Top + window.Height / 2; ++top) {
            Field = FieldAt({left, top}, columns, rows);
            if (std::all_of(Field.Points.begin(), Field.Points.end(),
                            [&](ScreenPoint point) { return IsDrawn(point); }))
                return true;
        }
        return false;
    }

    bool IsDrawn(ScreenPoint point) { return PixelAt(point) == Drawn; }

    int CountDrawn() {
        return static_cast<int>(std::count_if(Field.Lines.begin(), Field.Lines.end(),
                                              [&](ScreenPoint line) { return IsDrawn(line); }));
    }

    // Draws the line if it is the person's turn, else waits until the computer has drawn it.
    void PlayLine(ScreenPoint line) {
        Await("the person's turn", [&] {
            MoveTo({line.X + 1, line.Y + 1});
            MoveTo(line);
            return IsDrawn(line) || PixelAt(line) == Ghost;
        });
        if (IsDrawn(line))
            return;
        Click(line);
        Await("the line", [&] { return IsDrawn(line); });
        ++LinesOfPerson;
    }

    // Plays lines until so many are drawn.
    void PlayOn(int count) {
        for (const ScreenPoint& line : Field.Lines)
            if (CountDrawn() < count)
                PlayLine(line);
        ASSERT_EQ(CountDrawn(), count);
    }

    // The colour of the picture beside the field.
    unsigned long ShownBackground() {
        const ScreenArea window = FocusedArea();
        return PixelAt({window.Left + 20, window.Top + window.Height / 2});
    }

    ScreenField Field;
    int LinesOfPerson = 0;
};

TEST_F(RealWindow, PlaysAWholeGameOfAPersonAgainstAComputerSetInTheDialogs) {
    SetGrid("3 Tab 2 Return");
    SetPlayers("Tab Tab Up Up Tab Tab Tab Down Down Return"); // Humanoid and Computer Cheat
    StartGame("ctrl+t", 3, 2);
    PlayOn(17);
    EXPECT_GT(LinesOfPerson, 2);

    // The game is over: a new one begins with an empty field, and can be given up.
    Press("ctrl+t");
    Await("an empty field", [&] { return CountDrawn() <= 1; });
    QuitGame();
    Press("ctrl+x");
    EXPECT_EQ(WaitForExit(), 0);
}

TEST_F(RealWindow, AnswersItsMenusByAccessKeyAndEndsWithinASecondBehindADialog) {
    SetGrid("4 Tab 4 Return");
    StartGame("alt+g a", 4, 4); // Game, Auto
    Await("an automatic game", [&] { return CountDrawn() >= 16; });
    Open("ctrl+x", "Exit the Game");
    Answer("Exit the Game", "Escape");
    Open("ctrl+h", "Quiblink Help");
    Answer("Quiblink Help", "Return");
    Open("ctrl+y", "Quiblink History");
    const ScreenArea viewer = FocusedArea();
    Click({viewer.Left + viewer.Width - 50, viewer.Top + viewer.Height - 25}); // its Ok
    WaitForFocus("Quiblink");

    const ScreenArea window = FocusedArea();
    Open("ctrl+r", "Define Playing Grid");
    Click({window.Left + window.Width - 10, window.Top - 10}); // the close box
    EXPECT_EQ(WaitForExit(1000), 0);
}

TEST_F(RealWindow, KeepsAGameAndTheSettingsInFiles) {
    SetGrid("3 Tab 2 Return");
    SetPlayers("Tab Tab Up Up Tab Tab Tab Up Return"); // both are persons
    StartGame("ctrl+t", 3, 2);
    PlayOn(5);

    Press("ctrl+u"); // pauses
    Open("ctrl+s", "Save a Quibs Game");
    Answer("Save a Quibs Game", "s t o r y Return");
    EXPECT_TRUE(std::filesystem::exists("story.qbs"));
    QuitGame();
    Open("ctrl+o", "Open a Quibs Game");
    Answer("Open a Quibs Game", "Tab s t o r y period q b s Return"); // past the list of games
    Await("the saved lines", [&] { return CountDrawn() == 5; });
    Press("ctrl+t");
    PlayOn(17);

    Open("ctrl+r", "Define Playing Grid");
    Press("Tab Tab space"); // the colour of the background
    Answer("Select Color", "alt+h End BackSpace BackSpace a a Return", "Define Playing Grid");
    Answer("Define Playing Grid", "Return");
    Await("the chosen colour", [&] { return ShownBackground() == 0x0000AA; });
    Press("ctrl+x");
    EXPECT_EQ(WaitForExit(), 0);

    StartProgram();
    WaitForFocus("Quiblink");
    Await("the chosen colour", [&] { return ShownBackground() == 0x0000AA; });
    Press("ctrl+x");
    EXPECT_EQ(WaitForExit(), 0);
}

} // namespace
