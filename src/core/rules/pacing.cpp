#include "core/rules/pacing.h"

#include "core/state/game_state.h"
#include "platform/desktop.h"

void Delay(float seconds) {
    const float start = SecondsSinceMidnight();
    const float end = start + seconds;
    float now = start;
    while (now >= start && now < end && !Game.ProgramEnding && !Game.CommandAfterGameOver) {
        YieldToEvents(end - now);
        now = SecondsSinceMidnight();
    }
}
