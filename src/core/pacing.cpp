#include "core/pacing.h"

#include "core/game_state.h"
#include "platform/desktop.h"

void Delay(float seconds) {
    const float start = SecondsSinceMidnight();
    const float end = start + seconds;
    for (float now = start; now >= start && now < end; now = SecondsSinceMidnight()) {
        if (Game.ProgramEnding || Game.CommandAfterGameOver)
            return;
        YieldToEvents(end - now);
    }
}
