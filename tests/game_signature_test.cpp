// One number for all behaviour: a hash over every drawing and every text of many whole games.
#include <cstdint>
#include <fstream>

#include "support/game_test.h"
#include "ui/commands.h"

namespace {

// A 64-bit FNV-1a hash of what was drawn since the last call and of the texts as they stand.
class Recorder {
public:
    void Record() {
        for (; Recorded < TheNullDesktop.Drawings.size(); ++Recorded) {
            const Drawing& d = TheNullDesktop.Drawings.at(Recorded);
            for (const int number : {static_cast<int>(d.What), d.FromX, d.FromY, d.ToX, d.ToY,
                                     static_cast<int>(d.DrawnColor)})
                Add(std::to_string(number));
        }
        for (const auto* box : {&frmQuibsMain.txtPlayer1Status, &frmQuibsMain.txtPlayer2Status,
                                &frmQuibsMain.txtBoxesStatus, &frmQuibsMain.txtLinesStatus})
            Add(box->Text);
        Add(frmQuibsMain.lblPlayer1Active.Caption);
        Add(frmQuibsMain.lblPlayer2Active.Caption);
    }

    std::uint64_t Hash = 0xCBF29CE484222325U;
    std::size_t Recorded = 0;

private:
    void Add(const std::string& text) {
        for (const char c : text + '\n')
            Hash = (Hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
};

class GameSignature : public GameTest {};

TEST_F(GameSignature, OfEveryPairOfPlayersIsTheOneOnRecordAndTheirBoardsAreSound) {
    Recorder recorder;
    for (const auto& [columns, rows] : {std::pair{10, 10}, {7, 4}, {1, 1}, {1, 6}, {5, 1}, {2, 2}})
        for (Integer firstKind = Humanoid; firstKind <= ComputerCheat; ++firstKind)
            for (Integer secondKind = Humanoid; secondKind <= ComputerCheat; ++secondKind)
                for (const Command command : {Command::Start, Command::Auto}) {
                    StartFresh();
                    SetUpGame(columns, rows, firstKind, secondKind);
                    Game.GameInPlay = false;
                    LetPersonsPlay(1);
                    recorder.Recorded = 0;
                    TheNullDesktop.WhenYielding = [&recorder] {
                        recorder.Record();
                        ASSERT_TRUE(BoardIsSound());
                    };
                    RunCommand(command);
                    recorder.Record();
                    EXPECT_EQ(Game.LinesDrawn, columns * (rows + 1) + (columns + 1) * rows);
                    EXPECT_TRUE(!Game.GameInPlay && frmQuibsMain.shpPlayer4Active.Visible);
                }
    std::uint64_t onRecord = 0;
    std::ifstream(QUIBLINK_TESTS "/game_signature.txt") >> onRecord;
    EXPECT_EQ(recorder.Hash, onRecord)
        << "The games are no longer the same. If that is meant, put " << recorder.Hash
        << " into tests/game_signature.txt and say so in the commit.";
}

} // namespace
