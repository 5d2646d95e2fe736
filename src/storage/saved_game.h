// Saved games: the board, the players and whose turn it is, in a text file.
#pragma once

#include <string>

// Writes the game on the field. Asks first when there is such a file already; ends silently when
// it cannot be written.
void SaveGame(const std::string& path);

// Replaces the game by the saved one, shows it and leaves it paused. A game that does not fit on
// the picture is refused in a message box. A file that is damaged, or missing, ends silently and
// leaves behind what was read of it. Only while no turn loop is running.
void LoadGame(const std::string& path);

// The text of such a file, from the game on the field.
std::string GameAsText();

// Takes over the game from the text that is being read. False, and nothing is touched, when it does
// not fit on the picture. Throws std::runtime_error where the text is damaged; what was read before
// stays.
bool ReadGame();

// The path under which a game of that name is saved in `directory`: with the extension ".qbs", in
// place of another of three characters.
std::string SavePath(const std::string& directory, const std::string& name);
