#include "platform/wave_file.h"

#include <gtest/gtest.h>

#include "support/files.h"

TEST(WaveFiles, AreRefusedWhereTheyLieOrAreCompressed) {
    const std::string good = BytesOf(QUIBLINK_TESTS "/fuzz/corpus/wave/plain.wav");
    EXPECT_TRUE(ReadWave(good) && !ReadWave(good + std::string(LargestWaveFile, '\0')));
    const std::pair<std::size_t, std::string> lies[] = {
        {0, "RIFX"},  {4, "\x2D"},  {8, "AVI "},  {12, "FMT "},
        {16, "\x08"}, {20, "\x55"}, {22, "\x03"}, {24, {"\x63\0\0\0\xC6\0\0\0", 8}},
        {28, "\x01"}, {32, "\x04"}, {40, "\x07"}, {43, "\xFF"}};
    for (const auto& [place, lie] : lies)
        EXPECT_FALSE(ReadWave(std::string(good).replace(place, lie.size(), lie))) << place;
    // The slowest and the fastest of one channel with 16 bits.
    for (const std::string& rates :
         {std::string("\x64\0\0\0\xC8\0\0\0", 8), std::string("\0\xEE\x02\0\0\xDC\x05\0", 8)})
        EXPECT_TRUE(ReadWave(std::string(good).replace(24, 8, rates)));
}
