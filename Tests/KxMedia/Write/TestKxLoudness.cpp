#include <KxMedia/Container/KxAvLog.h>
#include <KxMedia/Write/KxLoudness.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr KxAudioReader::Format Stereo{48000, 2};
constexpr double Pi = 3.14159265358979323846;

/// A tone of 997 Hz in blocks of 40 ms. Its loudness is its amplitude in dB.
std::vector<KxAudioBlock> Tone(double amplitude, double seconds)
{
    constexpr int blockSamples = 1920;
    std::vector<KxAudioBlock> blocks;
    const int count = static_cast<int>(seconds * Stereo.sampleRateHz / blockSamples);
    for (int index = 0; index < count; ++index) {
        KxAudioBlock block;
        block.channels = Stereo.channels;
        for (int sample = 0; sample < blockSamples; ++sample) {
            const double time = static_cast<double>(index * blockSamples + sample) / Stereo.sampleRateHz;
            const auto value = static_cast<float>(amplitude * std::sin(2.0 * Pi * 997.0 * time));
            block.samples.insert(block.samples.end(), 2, value);
        }
        blocks.push_back(std::move(block));
    }
    return blocks;
}

std::optional<KxLoudness> Measured(const std::vector<KxAudioBlock>& blocks)
{
    KxRouteAvLog(); // otherwise the filter prints a summary
    const auto meter = KxLoudnessMeter::Make(Stereo);
    EXPECT_TRUE(meter) << meter.Message().toStdString();
    for (const KxAudioBlock& block : blocks) {
        EXPECT_FALSE((*meter)->Add(block));
    }
    const auto result = (*meter)->Result();
    EXPECT_TRUE(result) << result.Message().toStdString();
    return result ? *result : std::nullopt;
}

std::vector<float> Filtered(const std::vector<KxAudioBlock>& blocks, const KxLoudness& measured, double targetLufs)
{
    const auto filter = KxLoudnessFilter::Make(measured, targetLufs, Stereo);
    EXPECT_TRUE(filter) << filter.Message().toStdString();
    std::vector<float> samples;
    for (const KxAudioBlock& block : blocks) {
        EXPECT_FALSE((*filter)->Add(block));
        EXPECT_FALSE((*filter)->TakeInto(samples));
    }
    EXPECT_FALSE((*filter)->End());
    EXPECT_FALSE((*filter)->TakeInto(samples));
    return samples;
}

} // namespace

TEST(KxLoudness, OfAToneIsItsLevel)
{
    const std::optional<KxLoudness> loudness = Measured(Tone(0.1, 5.0));
    ASSERT_TRUE(loudness);
    EXPECT_NEAR(loudness->integratedLufs, -20.0, 0.1);
    EXPECT_NEAR(loudness->truePeakDb, -20.0, 0.1);
    EXPECT_NEAR(loudness->thresholdLufs, -30.0, 0.1);
    EXPECT_NEAR(loudness->rangeLu, 0.0, 0.1);
}

TEST(KxLoudness, SilenceAndVeryShortSoundHaveNone)
{
    EXPECT_FALSE(Measured(Tone(0.0, 2.0)));
    EXPECT_FALSE(Measured(Tone(0.5, 0.2)));
}

TEST(KxLoudness, ASampleThatIsNoNumberCountsAsSilence)
{
    std::vector<KxAudioBlock> tone = Tone(0.1, 5.0);
    tone.front().samples.front() = std::numeric_limits<float>::quiet_NaN();
    const std::optional<KxLoudness> loudness = Measured(tone);
    ASSERT_TRUE(loudness);
    EXPECT_NEAR(loudness->integratedLufs, -20.0, 0.1);
}

TEST(KxLoudness, TheFilterRaisesAllOfTheSoundAlikeAndKeepsItsLength)
{
    const std::vector<KxAudioBlock> tone = Tone(0.1, 5.0);
    const std::vector<float> samples = Filtered(tone, *Measured(tone), -14.0);
    ASSERT_EQ(samples.size(), tone.size() * tone.front().samples.size());
    const double gain = std::pow(10.0, 6.0 / 20.0);
    for (size_t at = 0; at < samples.size(); at += 1001) {
        const std::vector<float>& block = tone[at / tone.front().samples.size()].samples;
        ASSERT_NEAR(samples[at], gain * block[at % block.size()], 0.002) << at;
    }
}

TEST(KxLoudness, PeaksAreLimitedAndTheLengthIsKept)
{
    std::vector<KxAudioBlock> sound = Tone(0.02, 10.0);
    sound[100] = Tone(0.9, 0.04).front();
    const std::vector<float> samples = Filtered(sound, *Measured(sound), -14.0);
    ASSERT_EQ(samples.size(), sound.size() * sound.front().samples.size());
    const float peak = std::abs(
        *std::max_element(samples.begin(), samples.end(), [](float a, float b) { return std::abs(a) < std::abs(b); }));
    EXPECT_LE(peak, std::pow(10.0, -1.4 / 20.0));
}
