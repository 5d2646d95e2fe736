// Stories in the real window: keys and pointer go in, pixels come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "ui/robot.h"

namespace {

constexpr unsigned Drawn = 0xFFFFFF; // the built-in colours
constexpr unsigned Text = 0x000000;
constexpr unsigned Ghost = 0xFF0000;
constexpr int Spacing = 25;

// Where the points of a field are on the screen, and the middles of its lines.
struct ScreenField {
    std::vector<QPoint> Points, Lines;
};

ScreenField FieldAt(QPoint first, int columns, int rows) {
    ScreenField field;
    for (int row = 0; row <= rows; ++row)
        for (int column = 0; column <= columns; ++column) {
            const QPoint point = first + QPoint(column, row) * Spacing;
            field.Points.push_back(point);
            if (column < columns)
                field.Lines.push_back(point + QPoint(Spacing / 2, 0));
            if (row < rows)
                field.Lines.push_back(point + QPoint(0, Spacing / 2));
        }
    return field;
}

class RealWindow : public ::testing::Test, protected Robot {
protected:
    void SetUp() override {
        for (const auto& file : std::filesystem::directory_iterator(QUIBLINK_DATA))
            std::filesystem::create_symlink(file, file.path().filename());
        WaitForFocus("Quiblink");
    }

    void TearDown() override { EXPECT_EQ(StandardError(), ""); }

    void WaitForFocus(const std::string& title) {
        Await(title, [&] { return FocusedTitle() == title; });
    }

    // A command that is about to be enabled may still be off when its keys arrive.
    void Open(const std::string& keys, const std::string& title) {
        const auto hasOpened = [&] { return FocusedTitle() == title; };
        ActUntil(title, hasOpened, [&] { Press(keys); });
    }

    // Opens a dialog, which the last of the answers closes.
    void Use(const std::string& keys, const std::string& title, const std::string& answers) {
        Open(keys, title);
        Press(answers);
        WaitForFocus("Quiblink");
    }

    void UseTwoPersons() { Use("ctrl+p", "Define Players", "Tab Tab Up Up Tab Tab Tab Up Return"); }

    void QuitGame() {
        Use("ctrl+q", "Quit the Game", "alt+y");
        Await("the cleared field", [&] { return CountDrawnPoints() == 0; });
    }

    void StartGame(const std::string& keys, int columns, int rows) {
        Press(keys);
        Await("the field", [&] { return FindField(columns, rows); });
    }

    // The field is centred in the picture: its left is known, and its top is searched for.
    bool FindField(int columns, int rows) {
        const QRect window = FocusedArea();
        const int left = window.left() + (window.width() - columns * Spacing) / 2;
        for (int top = window.top(); top < window.center().y(); ++top) {
            Field = FieldAt({left, top}, columns, rows);
            if (CountDrawnPoints() < Field.Points.size())
                continue;
            Field = FieldAt({left, top + 1}, columns, rows); // the middle of the dots
            return true;
        }
        return false;
    }

    std::size_t CountDrawnPoints() {
        return std::count_if(Field.Points.begin(), Field.Points.end(),
                             [&](QPoint point) { return IsDrawn(point); });
    }

    bool IsDrawn(QPoint point) { return PixelAt(point) == Drawn; }

    long CountDrawn() {
        return std::count_if(Field.Lines.begin(), Field.Lines.end(),
                             [&](QPoint line) { return IsDrawn(line); });
    }

    void DrawByPointer(QPoint line) {
        QPoint besideMiddle(1, 1);
        ActUntil(
            "the ghost line", [&] { return PixelAt(line) == Ghost; },
            [&] {
                besideMiddle = -besideMiddle; // a pointer that stands still is not heard
                MoveTo(line + besideMiddle);
            });
        Click(line);
        Await("the line", [&] { return IsDrawn(line); });
    }

    // Draws lines without the pointer, wherever the keys lead.
    void PlayOnByKeys(int count) {
        const auto areDrawn = [&] { return CountDrawn() >= count; };
        ActUntil("the lines", areDrawn, [&] { Press("Right Return"); });
        EXPECT_EQ(CountDrawn(), count);
    }

    // The colour of the picture beside the field.
    unsigned long ShownBackground() {
        const QRect window = FocusedArea();
        return PixelAt({window.left() + 20, window.center().y()});
    }

    ScreenField Field;
};

TEST_F(RealWindow, AnswersItsMenusByAccessKeyAndEndsBehindADialog) {
    Use("ctrl+r", "Define Playing Grid", "4 Tab 4 Return");
    StartGame("alt+g a", 4, 4); // Game, Auto
    Await("an automatic game", [&] { return CountDrawn() >= 16; });
    Use("ctrl+x", "Exit the Game", "Escape");
    ResizeWindow(FocusedArea().size() + QSize(80, 60));
    Await("the field in its new place", [&] { return FindField(4, 4) && CountDrawn() >= 16; });
    Open("ctrl+h", "Quiblink Help");
    Await("the help", [&] { return AreaOf(Text).height() > 100; });
    Press("Return");
    WaitForFocus("Quiblink");

    const QRect window = FocusedArea();
    Open("ctrl+r", "Define Playing Grid");
    Click(window.topRight() - QPoint(10, 10)); // the close box above it
    EXPECT_EQ(WaitForExit(), 0);
}

TEST_F(RealWindow, DrawsADocumentAndOpensAGameByPointer) {
    // A centred, an indented and a large block, the last in the second of two columns.
    std::filesystem::remove("qblnkhst.rtf");
    PutBytes("qblnkhst.rtf",
             "{\\rtf1{\\colortbl;\\red255;\\green255;\\blue255;}"
             "\\fs40\\qc\\cf1\\u9608?\\par\\pard\\li1500\\cf2\\u9608?\\par"
             "\\trowd\\cellx3000\\cellx6000\\pard\\cf3\\cell\\fs80\\u9608?\\cell\\row}");
    Open("ctrl+y", "Quiblink History");
    Await("the history", [&] { return !AreaOf(0x0000FF).isEmpty(); });
    const QRect window = FocusedArea();
    const QRect centred = AreaOf(0xFF0000);
    const QRect indented = AreaOf(0x00FF00);
    const QRect inCell = AreaOf(0x0000FF);
    EXPECT_NEAR(centred.center().x(), window.center().x(), 12);
    EXPECT_NEAR(indented.left(), window.left() + 114, 6);
    EXPECT_NEAR(inCell.left(), window.center().x(), 12);
    EXPECT_NEAR(inCell.height(), 2 * centred.height(), 2);
    EXPECT_TRUE(indented.top() > centred.bottom() && inCell.top() > indented.bottom());
    Click(window.bottomRight() - QPoint(50, 25)); // its Ok
    WaitForFocus("Quiblink");

    UseTwoPersons();
    StartGame("ctrl+d", 10, 10);
    const long saved = CountDrawn();
    Use("ctrl+s", "Save a Quibs Game", "s t o r y Return");
    QuitGame();
    Open("ctrl+o", "Open a Quibs Game");
    const QRect dialog = FocusedArea();
    const QPoint firstGame(dialog.center().x() + 40, dialog.top() + 25);
    const auto isOpened = [&] { return FocusedTitle() == "Quiblink"; };
    ActUntil("the opened game", isOpened, [&] {
        // The list may still be empty.
        for (int clicks = 0; clicks < 2 && !isOpened(); ++clicks)
            Click(firstGame);
    });
    Await("the saved lines", [&] { return CountDrawn() == saved; });
    Press("ctrl+t");
    DrawByPointer(*std::find_if_not(Field.Lines.begin(), Field.Lines.end(),
                                    [&](QPoint line) { return IsDrawn(line); }));
}

TEST_F(RealWindow, NeedsNoPointerForAWholeGameItsDialogsAndItsFiles) {
    Use("ctrl+r", "Define Playing Grid", "3 Tab 2 Return");
    UseTwoPersons();
    StartGame("F10 Right t", 3, 2);     // Game, Start
    Press("Right space Return Return"); // shows the middle line, turns it, draws it
    Await("the turned line", [&] { return IsDrawn(Field.Lines.at(10)); });
    PlayOnByKeys(5);

    Use("ctrl+h", "Quiblink Help", "Next Tab Return");
    Use("ctrl+y", "Quiblink History", "Return");
    Use("ctrl+b", "About Quiblink", "Return");
    Press("ctrl+u"); // pauses
    Use("ctrl+s", "Save a Quibs Game", "s t o r y Return");
    EXPECT_TRUE(std::filesystem::exists("story.qbs"));
    QuitGame();
    Use("ctrl+o", "Open a Quibs Game", "Tab s t o r y period q b s Return"); // past the list
    Await("the saved lines", [&] { return CountDrawn() == 5; });
    Press("ctrl+t");
    PlayOnByKeys(17);

    Open("ctrl+r", "Define Playing Grid");
    Press("Tab Tab Return"); // the colour of the background
    WaitForFocus("Select Color");
    Press("alt+h End BackSpace BackSpace a a Return");
    WaitForFocus("Define Playing Grid");
    Press("Tab Tab Tab Tab Return"); // past the other colours
    WaitForFocus("Quiblink");
    Await("the chosen colour", [&] { return ShownBackground() == 0x0000AA; });
    Press("ctrl+x");
    EXPECT_EQ(WaitForExit(), 0);

    StartProgram({"story.qbs"});
    WaitForFocus("Quiblink");
    Await("the saved game", [&] { return FindField(3, 2) && CountDrawn() == 5; });
    Await("the colour of the first run", [&] { return ShownBackground() == 0x0000AA; });
    Open("ctrl+x", "Exit the Game");
    Press("alt+y");
    EXPECT_EQ(WaitForExit(), 0);
}

TEST_F(RealWindow, ForgetsNothingOfTheBoardAndStaysOnTheScreenWhenBothBecomeSmaller) {
    Use("ctrl+r", "Define Playing Grid", "Escape"); // a new window may still take its own size
    ResizeWindow({900, 700});
    Use("ctrl+r", "Define Playing Grid", "End Tab 4 Return");
    StartGame("ctrl+d", 34, 4);
    const QPoint farAcross = Field.Points.at(22) - FocusedArea().topLeft();
    for (const int width : {560, 600}) { // neither shows the whole field, the second more of it
        ResizeWindow({width, 700});
        WaitForFocus("Quiblink Resize Warning");
        Press("Return");
        WaitForFocus("Quiblink");
    }
    const QPoint shown = FocusedArea().topLeft() + farAcross;
    Await("what was outside", [&] { return PixelAt(shown) == Drawn; });

    ShrinkScreen();
    Await("the window on the smaller screen", [&] {
        return FocusedTitle() == "Quiblink" && QRect(0, 0, 800, 500).contains(FocusedArea());
    });
}

} // namespace
