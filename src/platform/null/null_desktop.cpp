#include "platform/null/null_desktop.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "platform/picture.h"
#include "platform/wave_player.h"

NullDesktop TheNullDesktop;

namespace {

struct ScriptedEvent {
    double Due;
    std::function<void()> Run;
};

std::vector<ScriptedEvent> script; // in the order of their times
std::string waveFile;
int openBoxes = 0;

constexpr double SecondsPerDay = 86400;

void AdvanceClock(double seconds) {
    TheNullDesktop.SecondsWaited += seconds;
    TheNullDesktop.Clock = std::fmod(TheNullDesktop.Clock + seconds, SecondsPerDay);
}

void RunDueEvents() {
    while (!script.empty() && script.front().Due <= TheNullDesktop.SecondsWaited) {
        const std::function<void()> event = std::move(script.front().Run);
        script.erase(script.begin());
        event();
    }
}

void SleepUntilEvent() {
    if (!script.empty()) {
        AdvanceClock(std::max(0.0, script.front().Due - TheNullDesktop.SecondsWaited));
        return;
    }
    if (!TheNullDesktop.WhenIdle)
        throw std::logic_error("the game waits for an event that never comes");
    TheNullDesktop.WhenIdle();
}

void SleepAtMost(double seconds) {
    // A clock of 32 bits must be seen to move.
    constexpr double clockStep = 1.0 / 128;
    double sleep = std::max(seconds, clockStep);
    if (!script.empty())
        sleep = std::clamp(script.front().Due - TheNullDesktop.SecondsWaited, 0.0, sleep);
    AdvanceClock(sleep);
}

void LiveThroughBox() {
    ++openBoxes;
    try {
        if (TheNullDesktop.WhenAsked)
            TheNullDesktop.WhenAsked();
        RunDueEvents();
    } catch (...) {
        --openBoxes;
        throw;
    }
    --openBoxes;
}

void Draw(Drawing::Kind kind, int fromX, int fromY, int toX, int toY, Color color) {
    TheNullDesktop.Drawings.push_back({kind, fromX, fromY, toX, toY, color});
}

} // namespace

void ResetNullDesktop() {
    TheNullDesktop = NullDesktop{};
    script.clear();
    waveFile.clear();
}

void AfterSeconds(double seconds, std::function<void()> event) {
    const double due = TheNullDesktop.SecondsWaited + seconds;
    const auto later = std::find_if(script.begin(), script.end(),
                                    [due](const ScriptedEvent& other) { return other.Due > due; });
    script.insert(later, {due, std::move(event)});
}

float SecondsSinceMidnight() {
    return static_cast<float>(TheNullDesktop.Clock);
}

void YieldToEvents(float atMostSeconds) {
    ++TheNullDesktop.Yields;
    if (TheNullDesktop.WhenYielding)
        TheNullDesktop.WhenYielding();
    if (atMostSeconds < 0)
        SleepUntilEvent();
    else if (atMostSeconds > 0)
        SleepAtMost(atMostSeconds);
    RunDueEvents();
}

MessageAnswer ShowMessageBox(const std::string& text, const std::string& title, MessageIcon icon,
                             MessageButtons buttons) {
    TheNullDesktop.Boxes.push_back({text, title, icon, buttons});
    if (TheNullDesktop.Answers.empty())
        throw std::logic_error("an unexpected message box: " + text);
    LiveThroughBox();
    const MessageAnswer answer = TheNullDesktop.Answers.front();
    TheNullDesktop.Answers.pop_front();
    return answer;
}

bool IsQuestionOpen() {
    return openBoxes > 0;
}

PointerPlace PlaceOfPointer() {
    return TheNullDesktop.Pointer;
}

bool IsListenedTo() {
    return TheNullDesktop.IsListenedTo;
}

void Say(const std::string& text) {
    TheNullDesktop.Sayings.push_back(text);
}

void ShowForm(Form form) {
    TheNullDesktop.Forms.push_back(form);
}

double ScreenTwipsPerPixelX() {
    return 15;
}

double ScreenTwipsPerPixelY() {
    return 15;
}

// The null picture is measured in twips alone.
void SetPictureScale(int /*twipsPerPixelX*/, int /*twipsPerPixelY*/) {}

double ScreenWidth() {
    return TheNullDesktop.ScreenWidth;
}

void PlaceMainWindow(WindowPlace place) {
    TheNullDesktop.Place = place;
}

int PictureWidth() {
    return TheNullDesktop.PictureWidth;
}

int PictureHeight() {
    return TheNullDesktop.PictureHeight;
}

void ClearPicture() {
    TheNullDesktop.Drawings.clear();
}

void PlotPoint(int x, int y, Color color) {
    Draw(Drawing::Kind::Point, x, y, x, y, color);
}

void DrawPictureLine(int fromX, int fromY, int toX, int toY, Color color) {
    Draw(Drawing::Kind::Line, fromX, fromY, toX, toY, color);
}

void ErasePictureLine(int fromX, int fromY, int toX, int toY) {
    Draw(Drawing::Kind::Erasure, fromX, fromY, toX, toY, Black);
}

void FillPictureBox(int left, int top, int right, int bottom, Color color) {
    Draw(Drawing::Kind::Box, left, top, right, bottom, color);
}

void SetWaveDeviceType(const std::string& deviceType) {
    TheNullDesktop.WaveDeviceType = deviceType;
}

void SetWaveFile(const std::string& fileName) {
    waveFile = fileName;
}

void CommandWavePlayer(WaveCommand command) {
    switch (command) {
    case WaveCommand::Open:
        TheNullDesktop.Sounds.push_back("Open " + waveFile);
        break;
    case WaveCommand::Play:
        TheNullDesktop.Sounds.push_back("Play " + waveFile);
        break;
    case WaveCommand::Close:
        TheNullDesktop.Sounds.emplace_back("Close");
        break;
    }
}
