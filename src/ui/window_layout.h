// Where the main window puts the field's picture and the status frame. All sizes are twips.
#pragma once

struct Rectangle {
    int Left, Top, Width, Height;

    bool operator==(const Rectangle&) const = default;
};

struct WindowLayout {
    Rectangle Frame;   // centred at the bottom
    Rectangle Picture; // the room between toolbar and frame, 0 to 32767 wide and high
};

inline constexpr int FrameMargin = 240; // the window is at least so much wider than the frame
inline constexpr int BottomMargin = 60;

// The inner area spans from the top of the toolbar to the bottom of the window.
WindowLayout LayOutWindow(int innerWidth, int innerHeight, int toolbarHeight, int frameWidth,
                          int frameHeight);
