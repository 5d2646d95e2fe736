#include "platform/wave_file.h"

#include <gtest/gtest.h>

#include "support/files.h"

using namespace std::string_literals;

TEST(WaveFiles, AreRefusedWhereTheyLieOrAreCompressed) {
    const auto example = [](const std::string& name) {
        return BytesOf(QUIBLINK_TESTS "/fuzz/corpus/wave/" + name);
    };
    const std::string plain = example("plain.wav");
    EXPECT_TRUE(ReadWave(plain));
    const std::pair<std::size_t, std::string> lies[] = {
        {0, "RIFX"},  {4, "\x2D"},  {8, "AVI "},  {12, "FMT "},
        {16, "\x08"}, {20, "\x55"}, {22, "\x03"}, {24, "\x63\0\0\0\xC6\0\0\0"s},
        {28, "\x01"}, {32, "\x04"}, {34, "\x08"}, {40, "\x07"},
        {40, "\x0A"}, {43, "\xFF"}};
    for (const auto& [place, lie] : lies) {
        const std::string bad = std::string(plain).replace(place, lie.size(), lie);
        EXPECT_FALSE(ReadWave(bad)) << place;
    }
    EXPECT_FALSE(ReadWave(plain + std::string(LargestWaveFile, '\0')));
    const std::string large = example("extensible.wav");
    const Wave wave = ReadWave(large).value();
    EXPECT_TRUE(wave.BitsPerSample == 24 && wave.Channels == 2 && wave.Samples.size() == 6);
}
