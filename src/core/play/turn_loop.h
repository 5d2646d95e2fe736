// Runs a game turn by turn until it is won, drawn, paused or given up.
#pragma once

// Plays the game that is set up: resumes it when `GamePaused` is set, else draws who begins. One
// long call that yields all the while; returns when the game is over and its end has been shown,
// when it is paused or abandoned, or when the program ends. Never called while another call of it
// is running. When an exception leaves it, the game is to be abandoned.
void PlayGame();

// Gives the game up: no scores, no counters, an empty field, and the commands of an idle window.
void AbandonGame();
