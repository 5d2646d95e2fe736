// Runs inputs through a fuzz target, without a fuzzer: every file of a directory, and, when one of
// them is named, that one cut short at every place and with every byte in every place; or, when a
// seed and a count are, so many inputs that the target's own mutator makes.
#include <iostream>

#include "fuzz/target.h"
#include "support/files.h"

extern "C" [[gnu::weak]] std::size_t LLVMFuzzerCustomMutator(std::uint8_t*, std::size_t,
                                                             std::size_t, unsigned);

namespace {

void Run(const std::string& input) {
    try {
        TryInput(input);
    } catch (...) {
        std::cerr << "A fault with this input:\n" << input << '\n';
        throw;
    }
}

void RunDamaged(const std::string& sample) {
    Require(!sample.empty(), "there is a sample to damage");
    for (std::size_t place = 0; place < sample.size(); ++place) {
        const std::string start = sample.substr(0, place);
        Run(start);
        for (int byte = 0; byte < 256; ++byte)
            Run(start + static_cast<char>(byte) + sample.substr(place + 1));
    }
}

// For the story: made by its mutator.
void RunMade(int firstSeed, int count) {
    std::string input(1 << 16, ' ');
    for (int seed = firstSeed; seed < firstSeed + count; ++seed) {
        auto* const data = reinterpret_cast<std::uint8_t*>(input.data());
        Run(input.substr(0, LLVMFuzzerCustomMutator(data, 0, input.size(), seed)));
    }
}

} // namespace

int main(int count, char** arguments) {
    const std::filesystem::path corpus = std::filesystem::absolute(arguments[1]);
    for (const auto& file : std::filesystem::directory_iterator(corpus))
        Run(BytesOf(file.path()));
    if (count == 3)
        RunDamaged(BytesOf(corpus / arguments[2]));
    if (count == 4)
        RunMade(std::stoi(arguments[2]), std::stoi(arguments[3]));
    return 0;
}
