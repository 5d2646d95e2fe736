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

// A 64-bit FNV-1a hash of what came to pass since the last call and of the controls as they stand.
class Recorder {
public:
    void Record() {
        std::ostringstream seen;
        const auto addNew = [&seen](const auto& all, std::size_t& known, auto add) {
            for (known = known > all.size() ? 0 : known; known < all.size(); ++known) {
                add(all.at(known));
                seen << '\n';
            }
        };
        addNew(TheNullDesktop.Drawings, Drawings, [&seen](const Drawing& d) {
            seen << static_cast<int>(d.What) << ' ' << d.FromX << ' ' << d.FromY << ' ' << d.ToX
                 << ' ' << d.ToY << ' ' << d.DrawnColor;
        });
        const auto addText = [&seen](const std::string& text) { seen << text; };
        addNew(TheNullDesktop.Sayings, Sayings, addText);
        addNew(TheNullDesktop.Sounds, Sounds, addText);
        addNew(TheNullDesktop.Boxes, Boxes,
               [&seen](const MessageBox& box) { seen << box.Title << ": " << box.Text; });
        addNew(TheNullDesktop.Forms, Forms,
               [&seen](Form form) { seen << static_cast<int>(form) << Game.ShowHistory; });
        PrintTo(frmQuibsMain, &seen);
        seen << std::lround(TheNullDesktop.SecondsWaited + 0.27); // no wait ends near a half
        for (const char c : seen.str())
            Hash = (Hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }

    std::uint64_t Hash = 0xCBF29CE484222325U;

private:
    std::size_t Drawings = 0, Sayings = 0, Sounds = 0, Boxes = 0, Forms = 0; // recorded
};

class GameSignature : public GameTest {};

TEST_F(GameSignature, OfEveryPairOfPlayersAndOfAnythingUsersDoIsTheOneOnRecord) {
    Recorder recorder;
    for (const char* sound : {"SndClick.wav", "SndC1.wav", "SndH2.wav", "SndT1.wav"})
        PutBytes(sound, "");
    for (const auto& [columns, rows] : {std::pair{10, 10}, {7, 4}, {1, 1}, {1, 6}, {5, 1}, {2, 2}})
        for (Integer firstKind = Humanoid; firstKind <= ComputerCheat; ++firstKind)
            for (Integer secondKind = Humanoid; secondKind <= ComputerCheat; ++secondKind)
                for (const Command command : {Command::Start, Command::Auto}) {
                    StartFresh();
                    SetUpGame(columns, rows, firstKind, secondKind);
                    Game.GameInPlay = false;
                    LetPersonsPlay(1);
                    TheNullDesktop.WhenYielding = [&recorder] {
                        recorder.Record();
                        ASSERT_TRUE(BoardIsSound());
                    };
                    RunCommand(command);
                    recorder.Record();
                    EXPECT_TRUE(!Game.GameInPlay && Game.LinesDrawn == Game.LineCount);
                }
    for (std::uint32_t seed = 1; seed <= 500; ++seed)
        PlayAnyGame(seed, [&recorder] {
            recorder.Record();
            EXPECT_EQ(FaultSeen(), "");
        });
    std::uint64_t onRecord = 0;
    std::ifstream(QUIBLINK_TESTS "/game_signature.txt") >> onRecord;
    EXPECT_EQ(recorder.Hash, onRecord)
        << "The games are no longer the same. If that is meant, put " << recorder.Hash
        << " into tests/game_signature.txt and say so in the commit.";
}

} // namespace
