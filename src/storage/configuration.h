// The settings and their built-in values.
#pragma once

// Gives every setting its built-in value, seeds the generator and finds the outcome sounds. Runs
// once when the program starts; needs the twips per pixel of the screen.
void SetDefaults();
