// One number for all behaviour: a hash over what is drawn, shown, told, asked and played in many
// games.
#include <cmath>
#include <cstdint>
#include <fstream>
#include <sstream>

#include "support/anything.h"
#include "support/game_test.h"
#include "ui/commands.h"

namespace {

std::uint64_t hash = 0; // 64 bits, FNV-1a

// Adds what came to pass since the last call and the controls as they stand.
void Record() {
    std::ostringstream seen;
    for (const Drawing& d : std::exchange(TheNullDesktop.Drawings, {}))
        seen << static_cast<int>(d.What) << ' ' << d.FromX << ' ' << d.FromY << ' ' << d.ToX << ' '
             << d.ToY << ' ' << d.DrawnColor << '\n';
    for (auto* const log : {&TheNullDesktop.Sayings, &TheNullDesktop.Sounds})
        for (const std::string& text : std::exchange(*log, {}))
            seen << text << '\n';
    for (const MessageBox& box : TheNullDesktop.Boxes)
        seen << box.Title << ": " << box.Text << '\n';
    for (const Form form : std::exchange(TheNullDesktop.Forms, {}))
        seen << static_cast<int>(form) << Game.ShowHistory << '\n';
    PrintTo(frmQuibsMain, &seen);
    seen << std::lround(TheNullDesktop.SecondsWaited + 0.27); // no wait ends near a half
    for (const char c : seen.str())
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
}

class GameSignature : public GameTest {};

TEST_F(GameSignature, OfEveryPairOfPlayersAndOfAnythingUsersDoIsTheOneOnRecord) {
    hash = 0xCBF29CE484222325U;
    for (const char* sound : {"SndClick.wav", "SndC1.wav", "SndH2.wav", "SndT1.wav"})
        PutBytes(sound, "");
    for (const auto& [columns, rows] : {std::pair{10, 10}, {11, 5}, {1, 1}, {1, 6}, {5, 1}, {2, 2}})
        for (Integer firstKind = Humanoid; firstKind <= ComputerCheat; ++firstKind)
            for (Integer secondKind = Humanoid; secondKind <= ComputerCheat; ++secondKind)
                for (const Command command : {Command::Start, Command::Auto}) {
                    StartFresh();
                    SetUpGame(columns, rows, firstKind, secondKind);
                    Game.GameInPlay = false;
                    LetPersonsPlay(1);
                    TheNullDesktop.WhenYielding = [] {
                        Record();
                        ASSERT_TRUE(BoardIsSound());
                    };
                    RunCommand(command);
                    Record();
                    EXPECT_TRUE(!Game.GameInPlay && Game.LinesDrawn == Game.LineCount);
                }
    for (std::uint32_t seed = 1; seed <= 500; ++seed)
        PlayAnyGame(seed, [] {
            Record();
            EXPECT_EQ(FaultSeen(), "");
        });
    std::uint64_t onRecord = 0;
    std::ifstream(QUIBLINK_TESTS "/game_signature.txt") >> onRecord;
    EXPECT_EQ(hash, onRecord) << "The games are no longer the same. If that is meant, put " << hash
                              << " into tests/game_signature.txt and say so in the commit.";
}

} // namespace
