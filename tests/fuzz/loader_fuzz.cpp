// Any bytes as a saved game, from memory: taken over up to the first fault, and lasting when whole.
#include <limits>

#include "fuzz/target.h"
#include "platform/null/null_desktop.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"

namespace {

bool IsTakenOver(const std::string& text) {
    CloseChannel();
    OpenTextForInput(text);
    try {
        return ReadGame();
    } catch (const std::runtime_error&) {
        return false;
    }
}

} // namespace

void TryInput(const std::string& input) {
    TheNullDesktop.PictureWidth = TheNullDesktop.PictureHeight = std::numeric_limits<int>::max();
    Game = GameState{};
    if (!IsTakenOver(input) || !NamesReadBackAsWritten())
        return;
    std::string text;
    try {
        text = GameAsText();
    } catch (const std::overflow_error&) {
        return; // a field of more columns than a number can tell
    }
    Require(IsTakenOver(text) && GameAsText() == text, "a game lasts from text to text");
}
