#include <KxSubject/Choice/KxHeardSound.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace
{

const KxSubjectOptions::Speech Options;

/// Decibels, 25 a second, from a level on.
KxSubjectRecord Record(std::int64_t first, const std::vector<double>& decibels)
{
    KxSubjectRecord record;
    KxSoundSpan span;
    span.first = first;
    std::transform(decibels.begin(), decibels.end(), std::back_inserter(span.levels),
                   [](double level) { return static_cast<std::int16_t>(100.0 * level); });
    record.sound.push_back(span);
    return record;
}

struct Stretch {
    std::size_t count;
    double decibels;
};

/// From the beginning on.
KxSubjectRecord Record(const std::vector<Stretch>& stretches)
{
    std::vector<double> decibels;
    for (const Stretch& stretch : stretches) {
        decibels.insert(decibels.end(), stretch.count, stretch.decibels);
    }
    return Record(0, decibels);
}

} // namespace

TEST(KxHeardSound, APartWithoutSoundIsUnknown)
{
    const KxSubjectRecord record = Record(100, std::vector<double>(200, -30.0));
    EXPECT_TRUE(KxHeardSound(record, Options, 100, 300).IsKnown());
    EXPECT_TRUE(KxHeardSound(record, Options, 50, 150).IsKnown());
    EXPECT_FALSE(KxHeardSound(record, Options, 50, 100).IsKnown());
    EXPECT_FALSE(KxHeardSound(record, Options, 300, 350).IsKnown());
    EXPECT_FALSE(KxHeardSound(record, Options, 200, 200).IsKnown());
    EXPECT_FALSE(KxHeardSound(KxSubjectRecord(), Options, 0, 100).IsKnown());
}

TEST(KxHeardSound, TheGateIsOpenWhileItIsLoud)
{
    const KxSubjectRecord record = Record({{100, -65.0}, {100, -25.0}, {100, -65.0}});
    const KxHeardSound sound(record, Options, 50, 250);
    ASSERT_EQ(sound.Gate().size(), 200U);
    ASSERT_EQ(sound.Scores().size(), 200U);
    EXPECT_FALSE(sound.Gate()[20]);
    EXPECT_TRUE(sound.Gate()[70]);
    EXPECT_TRUE(sound.Gate()[140]);
    EXPECT_FALSE(sound.Gate()[170]);
}

TEST(KxHeardSound, APauseWithinAWordDoesNotCloseTheGate)
{
    const KxSubjectRecord record =
        Record({{100, -65.0}, {50, -25.0}, {6, -65.0}, {50, -25.0}, {40, -65.0}, {50, -25.0}});
    const KxHeardSound sound(record, Options, 0, 296);
    EXPECT_TRUE(sound.Gate()[153]);
    EXPECT_FALSE(sound.Gate()[225]);
}

TEST(KxHeardSound, SteadyNoiseIsNoSpeech)
{
    const KxSubjectRecord record = Record({{300, -40.0}, {200, -20.0}, {300, -40.0}});
    const KxHeardSound sound(record, Options, 0, 800);
    EXPECT_FALSE(sound.Gate()[100]);
    EXPECT_TRUE(sound.Gate()[400]);
    EXPECT_FALSE(sound.Gate()[700]);
}

TEST(KxHeardSound, WhatIsNotKnownIsSilence)
{
    KxSubjectRecord record = Record(100, std::vector<double>(200, -30.0));
    record.sound.push_back({500, std::vector<std::int16_t>(200, -3000)});
    const KxHeardSound sound(record, Options, 50, 650);
    ASSERT_EQ(sound.Gate().size(), 600U);
    EXPECT_FALSE(sound.Gate()[20]);
    EXPECT_TRUE(sound.Gate()[150]);
    EXPECT_FALSE(sound.Gate()[350]);
    EXPECT_TRUE(sound.Gate()[550]);
}
