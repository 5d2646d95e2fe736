// Makes the game's sounds: a soft click, and a short tune for each way in which a game can end.
// The same program makes the same bytes every time.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr int SamplesPerSecond = 22050;
constexpr double Peak = 0.25; // of full scale: 12 dB below it
constexpr double FadeIn = 0.008;
constexpr double FadeOut = 0.06;

struct Note {
    double Start;    // seconds
    double Length;   // seconds
    int Key;         // as on a piano: 69 is the a of 440 Hz, a semitone each
    double Softness; // seconds in which the tone falls to a third
};

struct Sound {
    std::string FileName;
    std::vector<Note> Notes;
};

constexpr int C4 = 60, E4 = 64, F4 = 65, G4 = 67, A4 = 69, B4 = 71, C5 = 72, D5 = 74, E5 = 76,
              G5 = 79, C6 = 84;

const std::vector<Sound> Sounds = {
    {"SndClick.wav", {{0, 0.12, C6, 0.02}}},
    // A computer wins: even steps, the second one with a nod.
    {"SndC1.wav",
     {{0, 0.5, C5, 0.2}, {0.2, 0.5, G4, 0.2}, {0.4, 0.5, E4, 0.2}, {0.6, 1.2, C4, 0.5}}},
    {"SndC2.wav",
     {{0, 0.5, G4, 0.2},
      {0.2, 0.5, F4, 0.2},
      {0.4, 0.5, D5, 0.2},
      {0.7, 1.2, C4, 0.5},
      {0.7, 1.2, G4, 0.5}}},
    // A person wins: upwards.
    {"SndH1.wav",
     {{0, 0.5, C5, 0.2},
      {0.15, 0.5, E5, 0.2},
      {0.3, 0.5, G5, 0.2},
      {0.5, 1.5, C6, 0.6},
      {0.5, 1.5, E5, 0.6}}},
    {"SndH2.wav",
     {{0, 0.4, G4, 0.2},
      {0.18, 0.4, C5, 0.2},
      {0.36, 0.4, G4, 0.2},
      {0.54, 0.5, E5, 0.2},
      {0.8, 1.4, G5, 0.6},
      {0.8, 1.4, C5, 0.6}}},
    // A draw: there and back.
    {"SndT1.wav",
     {{0, 0.5, A4, 0.25}, {0.3, 0.5, B4, 0.25}, {0.6, 1.3, A4, 0.5}, {0.6, 1.3, E4, 0.5}}}};

// A bell-like tone: the overtones are weaker and die away sooner.
double Tone(const Note& note, double time) {
    constexpr std::array<double, 3> overtones = {1.0, 0.3, 0.1};
    const double frequency = 440 * std::pow(2.0, (note.Key - 69) / 12.0);
    double level = 0;
    double multiple = 1;
    for (const double strength : overtones) {
        level += strength * std::exp(-time * multiple / note.Softness) *
                 std::sin(2 * std::numbers::pi * frequency * multiple * time);
        ++multiple;
    }
    return level * std::min({1.0, time / FadeIn, (note.Length - time) / FadeOut});
}

std::vector<double> Mix(const std::vector<Note>& notes) {
    std::vector<double> levels;
    for (const Note& note : notes) {
        const auto first = static_cast<std::size_t>(note.Start * SamplesPerSecond);
        const auto count = static_cast<std::size_t>(note.Length * SamplesPerSecond);
        levels.resize(std::max(levels.size(), first + count));
        for (std::size_t i = 0; i < count; ++i)
            levels.at(first + i) += Tone(note, static_cast<double>(i) / SamplesPerSecond);
    }
    double loudest = 0;
    for (const double level : levels)
        loudest = std::max(loudest, std::abs(level));
    for (double& level : levels)
        level *= Peak / loudest;
    return levels;
}

void AppendNumber(std::string& bytes, std::uint32_t number, int width) {
    for (int i = 0; i < width; ++i)
        bytes.push_back(static_cast<char>((number >> (8 * i)) & 0xFF));
}

// A wave file of 16-bit samples, one channel.
std::string ToWave(const std::vector<double>& levels) {
    const auto dataBytes = static_cast<std::uint32_t>(2 * levels.size());
    std::string bytes = "RIFF";
    AppendNumber(bytes, 36 + dataBytes, 4);
    bytes += "WAVEfmt ";
    AppendNumber(bytes, 16, 4);
    AppendNumber(bytes, 1, 2); // uncompressed
    AppendNumber(bytes, 1, 2);
    AppendNumber(bytes, SamplesPerSecond, 4);
    AppendNumber(bytes, 2 * SamplesPerSecond, 4);
    AppendNumber(bytes, 2, 2);
    AppendNumber(bytes, 16, 2);
    bytes += "data";
    AppendNumber(bytes, dataBytes, 4);
    for (const double level : levels)
        AppendNumber(bytes, static_cast<std::uint32_t>(std::lround(level * 32767)), 2);
    return bytes;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: make_sounds directory\n";
        return 2;
    }
    for (const Sound& sound : Sounds) {
        std::ofstream file(std::string(argv[1]) + "/" + sound.FileName, std::ios::binary);
        file << ToWave(Mix(sound.Notes));
        file.close();
        if (!file) {
            std::cerr << "make_sounds: cannot write " << sound.FileName << "\n";
            return 1;
        }
    }
    return 0;
}
