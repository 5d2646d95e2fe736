// Which sounds are found and played.
#include "display/sound.h"

#include "support/game_test.h"
#include "support/sound_files.h"
#include "ui/commands.h"

namespace {

class Sound : public GameTest {};

TEST_F(Sound, FilesAreFoundAcrossGapsAndPlayedInTurn) {
    const SoundFiles files({"SndC1.wav", "SndC3.wav", "SndC0.wav", "SndC11.wav", "SndT10.wav"});
    FindOutcomeSounds();
    EXPECT_EQ(Game.ComputerWinSounds.Names, (std::vector<std::string>{"SndC1.wav", "SndC3.wav"}));
    Game.ComputerWinSounds.Next = 0;
    for (const char* name : {"SndC1.wav", "SndC3.wav", "SndC1.wav"})
        EXPECT_EQ(NextSound(Game.ComputerWinSounds), name);
    EXPECT_EQ(Game.DrawSounds.Next, 1);
    EXPECT_EQ(NextSound(Game.DrawSounds), "SndT10.wav");
    EXPECT_EQ(Game.HumanWinSounds.Next, 0);
    EXPECT_EQ(NextSound(Game.HumanWinSounds), "");
}

TEST_F(Sound, IsPlayedOnlyIfItIsThereAndWanted) {
    const SoundFiles files({"SndClick.wav"});
    PlaySound("");
    PlaySound("SndH1.wav");
    PlaySound("."); // a directory
    EXPECT_TRUE(TheNullDesktop.Sounds.empty());
    RunCommand(Command::Sound);
    EXPECT_FALSE(StateOf(Command::Sound).Checked);
    PlaySound("SndClick.wav");
    EXPECT_TRUE(TheNullDesktop.Sounds.empty());
    RunCommand(Command::Sound);
    EXPECT_TRUE(StateOf(Command::Sound).Checked);
    EXPECT_TRUE(Game.SettingsChanged);
    PlaySound("SndClick.wav");
    EXPECT_EQ(TheNullDesktop.Sounds,
              (std::vector<std::string>{"Open SndClick.wav", "Play SndClick.wav"}));
}

} // namespace
