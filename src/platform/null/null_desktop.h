// The desktop of tests and benchmarks: no window, a clock that moves only while the game waits,
// answers from a queue, a log of all that was drawn, played and asked, and a script of events that
// run inside the game's yields.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/color.h"
#include "platform/desktop.h"

struct Drawing {
    enum class Kind { Point, Line, Erasure, Box };
    Kind What;
    int FromX, FromY, ToX, ToY; // twips
    Color DrawnColor;           // of no meaning for an erasure

    bool operator==(const Drawing&) const = default;
};

struct MessageBox {
    std::string Text, Title;
    MessageIcon Icon;
    MessageButtons Buttons;
};

struct NullDesktop {
    int PictureWidth = 8400; // twips
    int PictureHeight = 6300;
    double Clock = 36000;       // seconds since midnight
    double ScreenWidth = 15360; // twips; 1024 pixels
    PointerPlace Pointer{-1, -1};

    std::deque<MessageAnswer> Answers; // a box that finds none fails the test
    // Called while a box is open, before the events that are due.
    std::function<void()> WhenAsked;
    // Called when the game sleeps for an event and no event is due: a person who may now act. A
    // game that sleeps for ever without one fails the test.
    std::function<void()> WhenIdle;
    // Called at the start of every yield.
    std::function<void()> WhenYielding;

    std::vector<Drawing> Drawings; // since the picture was cleared
    std::vector<MessageBox> Boxes;
    std::vector<Form> Forms;
    std::optional<WindowPlace> Place;
    bool IsListenedTo = true;
    std::vector<std::string> Sayings;
    std::vector<std::string> Sounds; // "Open SndClick.wav", "Play SndClick.wav", "Close"
    std::string WaveDeviceType;
    double SecondsWaited = 0;
    int Yields = 0;
};

extern NullDesktop TheNullDesktop;

// A fresh desktop with nothing scripted or logged.
void ResetNullDesktop();

// Runs `event` inside the first yield or box at or after so many seconds from now.
void AfterSeconds(double seconds, std::function<void()> event);
