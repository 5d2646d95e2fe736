#include "ai/deep_sacrifice.h"

#include "ai/sacrifice.h"
#include "core/game_state.h"
#include "core/pacing.h"

void ChooseSacrificeDeep() {
    if (!Game.HintMode)
        Delay(0.5F);
    ChooseSmallestGiveaway();
}
