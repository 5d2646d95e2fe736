// The settings: their built-in values, and the file "QUIBLNK.CFG" of the current directory that
// keeps them from run to run.
#pragma once

// Gives every setting its built-in value, lets the file override them, seeds the generator and
// finds the outcome sounds. Runs once when the program starts; needs the twips per pixel of the
// screen.
void SetDefaults();

// Takes over the settings of the file if it holds them all, else none. Never fails.
void ReadConfiguration();

// Rewrites the file if a setting was changed. Throws std::runtime_error when it cannot.
void WriteConfiguration();
