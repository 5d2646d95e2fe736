// The reader of wave files: from the bytes of a file to samples that a device can be given.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

struct Wave {
    int SamplesPerSecond; // 100 to 192,000
    int BitsPerSample;    // 8 (unsigned), 16 or 24 (signed, lowest byte first)
    int Channels;         // 1 or 2
    // Whole frames, a sample of each channel, of the bytes that were read.
    std::string_view Samples;

    std::size_t BytesPerFrame() const {
        return static_cast<std::size_t>(BitsPerSample) / 8 * static_cast<std::size_t>(Channels);
    }
};

constexpr std::size_t LargestWaveFile = 8 << 20; // bytes

// The sound in the bytes of a wave file. Nothing if they are too many, are compressed, are none
// that a Wave can say, or if their header contradicts itself or tells of more than is there.
std::optional<Wave> ReadWave(std::string_view bytes);
