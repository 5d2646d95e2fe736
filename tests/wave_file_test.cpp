#include "platform/wave_file.h"

#include <gtest/gtest.h>

#include "support/files.h"

TEST(WaveFiles, AreRefusedWhereTheyLieOrAreCompressed) {
    const std::string corpus = QUIBLINK_TESTS "/fuzz/corpus/wave/";
    const std::string plain = BytesOf(corpus + "plain.wav");
    const std::string extensible = BytesOf(corpus + "extensible.wav");
    const std::string largest = plain + std::string(LargestWaveFile - plain.size(), '\0');
    EXPECT_EQ(ReadWave(largest).value().Samples, plain.substr(44));
    EXPECT_EQ(ReadWave(extensible).value().Samples, extensible.substr(80));
    EXPECT_EQ(ReadWave(BytesOf(corpus + "odd_chunks.wav")).value().Samples, "\x80\x90p");
    EXPECT_FALSE(ReadWave(largest + '\0'));
    const auto isRead = [](std::string bytes, std::size_t place, const std::string& change) {
        return ReadWave(bytes.replace(place, change.size(), change)).has_value();
    };
    const std::pair<std::size_t, std::string> lies[] = {
        {0, "RIFX"},  {4, "\x2D"},  {8, "AVI "},  {12, "FMT "},
        {16, "\x08"}, {20, "\x55"}, {22, "\x03"}, {24, {"\x63\0\0\0\xC6\0\0\0", 8}},
        {28, "\x01"}, {32, "\x04"}, {40, "\x07"}, {43, "\xFF"}};
    for (const auto& [place, lie] : lies)
        EXPECT_FALSE(isRead(plain, place, lie)) << place;
    for (const std::size_t place : {20, 34, 38, 44, 59})
        EXPECT_FALSE(isRead(extensible, place, "\x11")) << place;
    // The slowest and the fastest of one channel with 16 bits, and one without samples.
    EXPECT_TRUE(isRead(plain, 24, {"\x64\0\0\0\xC8\0\0\0", 8}));
    EXPECT_TRUE(isRead(plain, 24, {"\0\xEE\x02\0\0\xDC\x05\0", 8}));
    EXPECT_TRUE(isRead(std::string(plain).replace(40, 12, 4, '\0'), 4, "\x24"));
}
