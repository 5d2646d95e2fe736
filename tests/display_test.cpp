// What the player chooses and hears, and how colours are named.
#include "display/color_words.h"
#include "display/sound.h"
#include "display/status_panel.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

class DisplayTest : public GameTest {};

TEST_F(DisplayTest, TakesWhatTheDialogsChoose) {
    const PlayerSettings players{.PlayerName = {{"Ada", "Bo"}},
                                 .PlayerKind = {{Humanoid, ComputerCheat}},
                                 .PlayerColor = {{LightRed, LightGreen}}};
    SetPlayers(players);
    EXPECT_TRUE(Game.SettingsChanged && static_cast<PlayerSettings&>(Game) == players);
    EXPECT_EQ(TextsOf(frmQuibsMain), "Ada:     0     Humanoid|Bo:     0     Cheat||");
    EXPECT_EQ(frmQuibsMain.shpPlayer2Status.FillColor, LightGreen);
    EXPECT_NO_THROW(ShowTurn(3)) << "nobody's";
    Game.SettingsChanged = false;
    const GridSettings grid{3, 2, LightRed, LightGreen, BrightWhite, Black};
    SetGrid(grid);
    EXPECT_TRUE(Game.SettingsChanged && static_cast<GridSettings&>(Game) == grid);
    EXPECT_EQ(frmQuibsMain.picPlayingField.BackColor, LightRed);
}

TEST_F(DisplayTest, PlaysTheSoundsThatAreThereInTurnWhileTheyAreWanted) {
    const TestDirectory directory;
    for (const char* name : {"SndC1.wav", "SndC3.wav", "SndC0.wav", "SndC11.wav", "SndT10.wav"})
        PutBytes(name, "");
    std::filesystem::create_directory("SndT1.wav");
    std::filesystem::create_symlink("missing", "SndT2.wav");
    FindOutcomeSounds();
    EXPECT_EQ(Game.ComputerWinSounds.Names, (std::vector<std::string>{"SndC1.wav", "SndC3.wav"}));
    Game.ComputerWinSounds.Next = 0;
    for (const char* name : {"SndC1.wav", "SndC3.wav", "SndC1.wav"})
        EXPECT_EQ(NextSound(Game.ComputerWinSounds), name);
    EXPECT_EQ(Game.DrawSounds, (SoundList{{"SndT10.wav"}, 1}));
    EXPECT_EQ(NextSound(Game.HumanWinSounds), "");
    for (const char* silent : {"", "SndH1.wav", "."})
        PlaySound(silent);
    RunCommand(Command::Sound);
    PlaySound("SndC1.wav");
    EXPECT_TRUE(TheNullDesktop.Sounds.empty() && Game.SettingsChanged);
    RunCommand(Command::Sound);
    EXPECT_TRUE(StateOf(Command::Sound).Checked);
    PlaySound("SndC1.wav");
    EXPECT_EQ(TheNullDesktop.Sounds,
              (std::vector<std::string>{"Open SndC1.wav", "Play SndC1.wav"}));
}

TEST_F(DisplayTest, NamesColorsAsPeopleDo) {
    const std::vector<std::pair<Color, const char*>> colors{
        {0x010101, "black"},      {0x444422, "gray"},   {0x0000C0, "light red"},
        {0xAA99AA, "gray"},       {0x008080, "yellow"}, {0xC0C0C0, "white"},
        {0xC06020, "light blue"}, {0x20A0F0, "orange"}, {0x13458B, "brown"}};
    for (const auto& [color, name] : colors)
        EXPECT_EQ(ColorInWords(color), name);
}

} // namespace
