// Runs inputs through a fuzz target, without a fuzzer: every file of a directory, and, when one of
// them is named, that one cut short at every place and with every byte in every place.
#include <iostream>

#include "fuzz/target.h"
#include "support/files.h"

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

} // namespace

int main(int count, char** arguments) {
    const std::filesystem::path corpus = std::filesystem::absolute(arguments[1]);
    for (const auto& file : std::filesystem::directory_iterator(corpus))
        Run(BytesOf(file.path()));
    if (count > 2)
        RunDamaged(BytesOf(corpus / arguments[2]));
    return 0;
}
