// Any bytes as a saved game: opened, saved, and used for what the last bytes tell.
#include <algorithm>
#include <utility>

#include "fuzz/target.h"
#include "storage/saved_game.h"
#include "storage/value_file.h"
#include "support/anything.h"
#include "support/files.h"
#include "support/person.h"
#include "ui/commands.h"

namespace {

constexpr std::size_t LongestStory = 16;

// The first round may mend a field of another width than its boxes have.
void RequireToLast() {
    std::string bytes, before;
    for (int round = 1; round <= 3 && Game.GamePaused && NamesReadBackAsWritten(); ++round) {
        SaveGame("saved.qbs");
        before = std::exchange(bytes, BytesOf("saved.qbs"));
        LoadGame("saved.qbs");
    }
    Require(bytes == before, "a game lasts from file to file");
}

} // namespace

void TryInput(const std::string& input) {
    static const TestDirectory directory;
    std::filesystem::remove("saved.qbs");
    StartFresh();
    TheNullDesktop.Answers.assign(9, MessageAnswer::Yes);
    PutBytes("given.qbs", input);
    OpenGame("given.qbs");
    CloseChannel();
    RequireToLast();
    std::size_t next = input.size() - std::min(input.size(), LongestStory);
    const auto tellOn = [&] {
        if (next < input.size())
            DoAnything(static_cast<unsigned char>(input.at(next++)));
    };
    Require(UseGameBriefly(tellOn), "a next game begins and ends");
}
