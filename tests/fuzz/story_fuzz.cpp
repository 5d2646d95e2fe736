// A saved game of any numbers: opened, and played to its end while that happens what the bytes
// behind its last line tell; then a next game. The fuzzer's inputs are small sound games of all
// kinds of players with some numbers changed.
#include <sys/time.h>

#include <algorithm>
#include <csignal>
#include <random>
#include <tuple>

#include "base/random.h"
#include "display/safe_lines.h"
#include "fuzz/target.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"
#include "support/anything.h"
#include "support/board.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

constexpr std::size_t LongestStory = 16;

// The start looks for sixty files, so it is made once.
void StartAgain() {
    static const auto start = [] {
        StartFresh();
        return std::pair(Game, frmQuibsMain);
    }();
    std::tie(Game, frmQuibsMain) = start;
    CloseChannel();
    ResetNullDesktop();
    SeedRandom(1);
}

// One choice on a large field may take a second.
void KeepNextGameSmall() {
    Game.GridColumns = std::min<Integer>(Game.GridColumns, 5);
    Game.GridRows = std::min<Integer>(Game.GridRows, 4);
}

void PlayWhatIsThere() {
    do
        RunGuarded([] { RunCommand(Command::Start); });
    while (Game.GamePaused && !Game.ProgramEnding);
}

std::string AnyGame(std::mt19937& chance) {
    StartAgain();
    SeedRandom(chance());
    SetUpGame(1 + static_cast<int>(chance() % 5), 1 + static_cast<int>(chance() % 4),
              ToInteger(static_cast<int>(chance() % 4)), ToInteger(static_cast<int>(chance() % 4)));
    Game.CurrentPlayer = RandomPick(2);
    if (chance() % 2 == 0)
        DrawSafeLines();
    std::vector<int> lines = UndrawnLines();
    std::shuffle(lines.begin(), lines.end(), chance);
    lines.resize(chance() % (lines.size() + 1));
    for (Box& box : Game.Boxes)
        box.Owner = RandomPick(2); // if it is complete
    DrawForNobody(lines);
    return GameAsText();
}

} // namespace

extern "C" [[gnu::used]] std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                                             std::size_t most, unsigned seed) {
    std::mt19937 chance(seed);
    std::string text(data, data + size);
    text.resize(text.rfind('\n') + 1);
    text = Damaged(text.empty() || seed % 2 == 0 ? AnyGame(chance) : text,
                   static_cast<std::uint32_t>(chance()));
    for (auto deeds = chance() % 2 * (chance() % LongestStory); deeds > 0; --deeds)
        text += static_cast<char>(chance());
    size = std::min(text.size(), most);
    std::copy_n(text.begin(), size, data);
    return size;
}

void TryInput(const std::string& input) {
    static const TestDirectory directory;
    constexpr itimerval second{{0, 0}, {1, 0}}; // of processor time; what takes longer is a finding
    std::signal(SIGVTALRM, [](int) { std::abort(); });
    setitimer(ITIMER_VIRTUAL, &second, nullptr);
    StartAgain();
    std::filesystem::remove("saved.qbs");
    OpenDamaged(input);
    std::string fault;
    std::size_t next =
        std::max(input.rfind('\n') + 1, input.size() - std::min(input.size(), LongestStory));
    const auto tellOn = [&] {
        if (fault.empty())
            fault = FaultSeen();
        KeepNextGameSmall();
        if (next < input.size())
            DoAnything(static_cast<unsigned char>(input.at(next++)) * 2654435761U);
        KeepNextGameSmall();
        TheNullDesktop.Answers.resize(9, MessageAnswer::Yes);
    };
    LetPersonsPlay(1);
    TheNullDesktop.WhenYielding = TheNullDesktop.WhenAsked = tellOn;
    tellOn();
    PlayWhatIsThere();
    tellOn();
    next = input.size();
    Game.GridColumns = Game.GridRows = 2;
    PlayWhatIsThere();
    Require(fault.empty(), fault.c_str());
    Require(Game.ProgramEnding || (Game.BoxCount > 0 && Game.BoxesClaimed == Game.BoxCount),
            "a next game is played to its end");
}
