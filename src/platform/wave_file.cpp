#include "platform/wave_file.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr std::string_view::size_type SmallestFormat = 16; // bytes of the chunk "fmt "

// A number of so many bytes, the lowest first.
std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t width) {
    std::uint32_t number = 0;
    for (std::size_t i = width; i > 0; --i)
        number = number << 8 | static_cast<unsigned char>(bytes.at(place + i - 1));
    return number;
}

struct Chunk {
    std::string_view Name, Content;
};

// Takes the first chunk off the bytes. Nothing if it is not wholly there.
std::optional<Chunk> TakeChunk(std::string_view& bytes) {
    constexpr std::size_t head = 8;
    if (bytes.size() < head)
        return std::nullopt;
    const std::size_t size = NumberAt(bytes, 4, 4);
    if (size > bytes.size() - head)
        return std::nullopt;
    const Chunk chunk = {bytes.substr(0, 4), bytes.substr(head, size)};
    const std::size_t sizeOnDisk = size + size % 2; // the last chunk may go without its padding
    bytes.remove_prefix(std::min(bytes.size(), head + sizeOnDisk));
    return chunk;
}

bool IsUncompressed(std::string_view format) {
    constexpr std::uint32_t plain = 1;
    constexpr std::uint32_t extensible = 0xFFFE;
    // Of an extensible format this is the kind that means plain samples, behind its bits in use.
    constexpr std::string_view plainKind = {
        "\x01\x00\x00\x00\x00\x00\x10\x00\x80\x00\x00\xAA\x00\x38\x9B\x71", 16};
    const std::uint32_t kind = NumberAt(format, 0, 2);
    return kind == plain ||
           (kind == extensible && format.size() >= 40 && format.substr(24, 16) == plainKind &&
            NumberAt(format, 18, 2) == NumberAt(format, 14, 2));
}

// The format alone, without samples.
std::optional<Wave> ReadFormat(std::string_view format) {
    if (format.size() < SmallestFormat || !IsUncompressed(format))
        return std::nullopt;
    const std::uint32_t channels = NumberAt(format, 2, 2);
    const std::uint32_t rate = NumberAt(format, 4, 4);
    const std::uint32_t bits = NumberAt(format, 14, 2);
    const bool isKnown = (channels == 1 || channels == 2) && rate >= 100 && rate <= 192'000 &&
                         (bits == 8 || bits == 16 || bits == 24);
    if (!isKnown)
        return std::nullopt;
    const Wave wave = {
        static_cast<int>(rate), static_cast<int>(bits), static_cast<int>(channels), {}};
    const bool isConsistent = NumberAt(format, 12, 2) == wave.BytesPerFrame() &&
                              NumberAt(format, 8, 4) == rate * wave.BytesPerFrame();
    return isConsistent ? std::optional(wave) : std::nullopt;
}

} // namespace

std::optional<Wave> ReadWave(std::string_view bytes) {
    if (bytes.size() > LargestWaveFile)
        return std::nullopt;
    const std::optional<Chunk> file = TakeChunk(bytes);
    if (!file || file->Name != "RIFF" || !file->Content.starts_with("WAVE"))
        return std::nullopt;
    std::string_view rest = file->Content.substr(4);
    std::optional<Wave> wave;
    while (const std::optional<Chunk> chunk = TakeChunk(rest)) {
        if (chunk->Name == "fmt " && !wave) {
            wave = ReadFormat(chunk->Content);
            if (!wave)
                return std::nullopt;
        }
        if (chunk->Name == "data") {
            if (!wave || chunk->Content.size() % wave->BytesPerFrame() != 0)
                return std::nullopt;
            wave->Samples = chunk->Content;
            return wave;
        }
    }
    return std::nullopt;
}
