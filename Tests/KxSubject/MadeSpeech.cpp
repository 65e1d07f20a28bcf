#include <Tests/KxSubject/MadeSpeech.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace
{

constexpr int FacePx = 50;
constexpr double Pi = 3.14159265358979323846;

class Noise
{
public:
    explicit Noise(std::uint64_t seed)
        : m_engine(seed)
    {
    }

    /// 0 to 1. Not a standard distribution: those differ between libraries.
    double Next() { return static_cast<double>(m_engine() % 100000) / 100000.0; }

private:
    std::mt19937_64 m_engine;
};

bool Speaks(const MadeSpeech::Scene& scene, int who, double seconds)
{
    return std::any_of(scene.turns.begin(), scene.turns.end(), [who, seconds](const MadeSpeech::Turn& turn) {
        return turn.who == who && seconds >= turn.from && seconds < turn.to;
    });
}

bool IsHeard(const MadeSpeech::Scene& scene, double seconds)
{
    return std::any_of(scene.turns.begin(), scene.turns.end(),
                       [seconds](const MadeSpeech::Turn& turn) { return seconds >= turn.from && seconds < turn.to; });
}

KxFaceTrack Face(double place, double seconds)
{
    KxFaceTrack face;
    for (int look = 0; look < static_cast<int>(seconds * 5.0); ++look) {
        const auto x = static_cast<std::int16_t>(std::lround(place * 320.0) - FacePx / 2);
        face.looks.push_back({static_cast<float>(look) * 0.2F, x, 50, FacePx, FacePx});
    }
    return face;
}

} // namespace

namespace MadeSpeech
{

std::vector<double> Syllables(double seconds, std::uint64_t seed)
{
    Noise noise(seed);
    const auto frames = static_cast<std::size_t>(seconds * FrameRate);
    std::vector<double> loudness(frames, 0.0);
    for (std::size_t frame = 0; frame < frames;) {
        const auto length = static_cast<std::size_t>(3.0 + 5.0 * noise.Next());
        const double peak = 0.4 + 0.6 * noise.Next();
        for (std::size_t i = 0; i < length && frame + i < frames; ++i) {
            loudness[frame + i] = peak * std::sin(Pi * static_cast<double>(i) / static_cast<double>(length));
        }
        frame += length + static_cast<std::size_t>(3.0 * noise.Next());
    }
    return loudness;
}

KxSubjectRecord Record(const Scene& scene)
{
    const std::vector<double> voice = Syllables(scene.seconds, 7);
    const std::vector<double> chewing = Syllables(scene.seconds, 8);
    const auto frames = static_cast<std::int32_t>(voice.size());
    KxSubjectRecord record;
    record.source = {960, 540, FrameRate, frames};
    record.workingSizePx = {320, 180};
    for (std::int32_t frame = 0; frame < frames; frame += frame % 5 == 0 ? 2 : 3) {
        record.samples.push_back({frame, {}, {}});
    }
    Noise noise(9);
    for (std::size_t who = 0; who < scene.places.size(); ++who) {
        record.faces.push_back(Face(scene.places[who], scene.seconds));
        const bool chews =
            std::find(scene.chewing.begin(), scene.chewing.end(), static_cast<int>(who)) != scene.chewing.end();
        KxMouthTrack mouth;
        mouth.face = static_cast<std::int32_t>(who);
        double openBefore = 0.0;
        for (std::int32_t frame = 2; frame < frames; frame += 2) {
            const auto at = static_cast<std::size_t>(frame);
            const bool speaks = Speaks(scene, static_cast<int>(who), frame / FrameRate);
            const double open = speaks ? voice[at] : chews ? chewing[at] : 0.1 * noise.Next();
            const double movement = 0.04 + 0.12 * open + 0.02 * noise.Next();
            mouth.looks.push_back({frame, 2, static_cast<std::uint16_t>(movement * KxMouthLook::One),
                                   static_cast<std::uint16_t>((0.04 + 0.02 * noise.Next()) * KxMouthLook::One),
                                   static_cast<std::int16_t>((open - openBefore) * KxMouthLook::One)});
            openBefore = open;
        }
        record.mouths.push_back(mouth);
    }
    KxSoundSpan sound;
    for (std::int32_t frame = 0; frame < frames; ++frame) {
        const double decibels =
            IsHeard(scene, frame / FrameRate) ? -50.0 + 30.0 * voice[static_cast<std::size_t>(frame)] : -65.0;
        sound.levels.push_back(static_cast<std::int16_t>(100.0 * decibels));
    }
    record.sound.push_back(sound);
    return record;
}

} // namespace MadeSpeech
