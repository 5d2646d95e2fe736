#include "core/play/review.h"

#include <array>

#include "ai/capture.h"
#include "ai/chain_tracing.h"
#include "core/state/grid.h"
#include "core/state/layout.h"
#include "display/news.h"
#include "display/words.h"
#include "platform/desktop.h"

namespace {

// "gives 6 boxes away", "closes 2 boxes, and 3 more lie open".
std::string EffectInWords(int line) {
    const Prospect prospect = ProspectOf(line);
    std::string effect = "free";
    if (prospect.Closed != 0)
        effect = "closes " + BoxesInWords(prospect.Closed);
    else if (prospect.Given != 0)
        effect = "gives " + BoxesInWords(prospect.Given) + " away";
    if (prospect.Open == 0)
        return effect;
    const bool isOne = prospect.Open == 1;
    if (effect == "free")
        return effect + ", but " + BoxesInWords(prospect.Open) +
               (isOne ? " lies open" : " lie open");
    return effect + ", and " + std::to_string(prospect.Open) +
           (isOne ? " more lies open" : " more lie open");
}

std::string OpenBoxesInWords() {
    const int open = ProspectOf(0).Open;
    if (open == 0)
        return "No box lies open.";
    const std::string first = PlaceOfBoxInWords(FindCaptureBox());
    return open == 1 ? "A box lies open at " + first + "."
                     : BoxesInWords(open) + " lie open, the first at " + first + ".";
}

// Where reading the boxes begins: beside the ghost line, or where one was or will be.
int BoxBesideGhost(Direction direction) {
    const int line = Game.GhostLine != 0       ? Game.GhostLine
                     : Game.LastGhostLine != 0 ? Game.LastGhostLine
                                               : MiddleLine();
    const auto [first, second] = BoxesBeside(line);
    const bool isForward = direction == Direction::Right || direction == Direction::Down;
    return first == 0 || (isForward && second != 0) ? second : first;
}

int NextBox(Direction direction) {
    constexpr std::array sides{Left, Top, Right, Bottom}; // in the order of the directions
    const int box = Game.Told.Box;
    if (box == 0)
        return BoxBesideGhost(direction);
    const Side side = sides.at(static_cast<std::size_t>(direction));
    return BoxAcross(Game.Boxes.at(box).Sides.at(side), box);
}

} // namespace

std::string GhostLineInWords() {
    const std::string line = LineInWords(Game.GhostLine);
    return line.empty() ? line : line + ", " + EffectInWords(Game.GhostLine);
}

void TellGhostLine() {
    if (!IsListenedTo() || Game.GhostLine == Game.Told.GhostLine)
        return;
    Game.Told.GhostLine = Game.GhostLine;
    Game.Told.Box = 0;
    if (Game.GhostLine != 0)
        Say(GhostLineInWords());
}

void TellNoOtherLine() {
    if (IsListenedTo())
        Say("No line that way");
}

void TellPlace() {
    if (!IsListenedTo())
        return;
    std::string place = GhostLineInWords();
    if (place.empty())
        return Say("No ghost line");
    const auto [first, second] = BoxesBeside(Game.GhostLine);
    const bool isVertical = IsVertical(Game.GhostLine);
    if (first != 0)
        place += (isVertical ? ". Left: " : ". Above: ") + SidesInWords(first);
    if (second != 0)
        place += (isVertical ? ". Right: " : ". Below: ") + SidesInWords(second);
    Say(place + ".");
}

void TellStanding() {
    if (!IsListenedTo())
        return;
    std::string standing = StandingInWords();
    if (BoardIsWhole() && Game.BoxesClaimed < Game.BoxCount)
        standing += ' ' + OpenBoxesInWords();
    Say(standing);
}

void TellBox(Direction direction) {
    if (!IsListenedTo() || !BoardIsWhole())
        return;
    const int box = NextBox(direction);
    if (box == 0)
        return Say("No box that way");
    Game.Told.Box = ToInteger(box);
    Say(PlaceOfBoxInWords(box) + ", " + SidesInWords(box));
}
