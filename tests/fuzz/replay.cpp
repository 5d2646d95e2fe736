// Runs inputs through a fuzz target, without a fuzzer: every file of a directory, and one file cut
// short at every place and with every byte in every place.
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

} // namespace

int main(int /*argc*/, char** argv) {
    const std::string sample = BytesOf(argv[2]);
    Require(!sample.empty(), "there is a sample to damage");
    for (const auto& file : std::filesystem::directory_iterator(argv[1]))
        Run(BytesOf(file.path()));
    for (std::size_t place = 0; place < sample.size(); ++place) {
        const std::string start = sample.substr(0, place);
        Run(start);
        for (int byte = 0; byte < 256; ++byte)
            Run(start + static_cast<char>(byte) + sample.substr(place + 1));
    }
    return 0;
}
