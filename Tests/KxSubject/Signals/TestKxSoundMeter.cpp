#include <KxSubject/Signals/KxSoundMeter.h>

#include <gmock/gmock.h>

#include <cmath>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

constexpr double Pi = 3.14159265358979323846;

std::vector<float> Tone(double seconds, double hz, double amplitude)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * KxSoundMeter::SamplesPerSecond));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = static_cast<float>(
            amplitude * std::sin(2.0 * Pi * hz * static_cast<double>(i) / KxSoundMeter::SamplesPerSecond));
    }
    return samples;
}

KxSoundSpan Measured(const std::vector<float>& samples)
{
    KxSoundMeter meter(0);
    meter.Add(samples.data(), samples.size());
    return meter.Finish();
}

KxSubjectRecord RecordWithMouths(const std::vector<std::pair<int, int>>& frames)
{
    KxSubjectRecord record;
    record.source = {960, 540, 25.0, 10000};
    for (const auto& [first, last] : frames) {
        KxMouthTrack mouth;
        mouth.looks = {{first, 2, 0, 0, 0}, {last, 2, 0, 0, 0}};
        record.mouths.push_back(mouth);
    }
    return record;
}

} // namespace

TEST(KxSoundMeter, TenTimesTheAmplitudeIsTwentyDecibels)
{
    const KxSoundSpan quiet = Measured(Tone(1.0, 1000.0, 0.02));
    const KxSoundSpan loud = Measured(Tone(1.0, 1000.0, 0.2));
    ASSERT_GE(quiet.levels.size(), 24U);
    EXPECT_NEAR(loud.levels[12] - quiet.levels[12], 2000, 20);
}

TEST(KxSoundMeter, OnlyTheBandOfSpeechCounts)
{
    const std::int16_t voice = Measured(Tone(1.0, 800.0, 0.2)).levels[12];
    EXPECT_LT(Measured(Tone(1.0, 60.0, 0.2)).levels[12], voice - 2000);
    EXPECT_LT(Measured(Tone(1.0, 6000.0, 0.2)).levels[12], voice - 2000);
}

TEST(KxSoundMeter, SilenceIsTheLowestLevel)
{
    const KxSoundSpan span = Measured(std::vector<float>(16000, 0.0F));
    EXPECT_EQ(span.levels[12], -7000);
}

TEST(KxSoundMeter, ALevelIsThatOfItsOwnTime)
{
    std::vector<float> samples(16000, 0.0F);
    const std::vector<float> tone = Tone(0.2, 1000.0, 0.3);
    std::copy(tone.begin(), tone.end(), samples.begin() + 8000);
    const KxSoundSpan span = Measured(samples);
    // The tone lasts from level 12.5 to 17.5.
    EXPECT_LT(span.levels[11], -5000);
    EXPECT_GT(span.levels[14], -2500);
    EXPECT_GT(span.levels[16], -2500);
    EXPECT_LT(span.levels[19], -5000);
}

TEST(KxSoundMeter, TheSizeOfTheBlocksMakesNoDifference)
{
    const std::vector<float> samples = Tone(1.0, 700.0, 0.1);
    const KxSoundSpan whole = Measured(samples);
    KxSoundMeter meter(0);
    for (std::size_t from = 0; from < samples.size(); from += 37) {
        meter.Add(samples.data() + from, std::min<std::size_t>(37, samples.size() - from));
    }
    EXPECT_EQ(meter.Finish().levels, whole.levels);
}

TEST(KxSoundMeter, ASampleThatIsNoNumberIsSilence)
{
    std::vector<float> samples(16000, std::nanf(""));
    EXPECT_EQ(Measured(samples).levels[12], -7000);
}

TEST(KxSoundMeter, OnlySoundNearMouthsIsWanted)
{
    EXPECT_THAT(KxSoundMeter::SpansOf(KxSubjectRecord()), IsEmpty());
    EXPECT_THAT(KxSoundMeter::SpansOf(RecordWithMouths({{50, 100}, {1000, 2000}, {1100, 1200}, {2200, 2300}})),
                ElementsAre(Pair(0, 225), Pair(875, 2425)));
}
