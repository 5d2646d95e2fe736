// What the intelligent and the cheating computer give away.
#pragma once

// Chooses among the distinct giveaways that `RiskyLines` holds, smallest first, and leaves a line
// in `ChosenLine`. Pauses half a second before, but not for a hint. Draws nothing.
void ChooseSacrificeDeep();
