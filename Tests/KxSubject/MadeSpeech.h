#pragma once

#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <vector>

/// People who talk, with known turns.
namespace MadeSpeech
{

constexpr double FrameRate = 25.0;

/// How loud a voice is, 0 to 1, in each frame: syllables of random lengths, the same for the same seed.
std::vector<double> Syllables(double seconds, std::uint64_t seed);

/// A person speaks from one time to another; nobody visible if the person is Offscreen.
struct Turn {
    double from = 0.0;
    double to = 0.0;
    int who = 0;
};
constexpr int Offscreen = -1;

struct Scene {
    double seconds = 20.0;
    std::vector<double> places; ///< of the faces' middles, fractions of the width; each is .16 wide
    std::vector<Turn> turns;
    std::vector<int> chewing; ///< whose mouths move all the time, without the sound
};

/// A record of a scene as an observer would make it, 960 x 540.
KxSubjectRecord Record(const Scene& scene);

} // namespace MadeSpeech
