// What a computer player gives away when no safe line is left.
#pragma once

// Chooses among two or more `RiskyLines` and leaves the choice in `ChosenLine`. Reduces the table
// to the distinct giveaways, smallest first, each under its lowest line.
void ChooseSacrifice();
