#include <KxPlayer/KxSoundPlayer.h>
#include <Tests/KxPlayer/FakeSound.h>
#include <Tests/KxPlayer/PlayerClip.h>

#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr int RateHz = KxSoundDevice::SampleRateHz;

class KxAudioOutputTest : public testing::Test
{
protected:
    quint64 StartAt(qint64 mediaUs)
    {
        const quint64 run = clock.Start(mediaUs);
        output.Start(source, fileClock, run, {});
        return run;
    }

    // Waits until the output has read the device and the clock again.
    bool AwaitLooks()
    {
        const int before = sound.looks;
        return QTest::qWaitFor([&] { return sound.looks >= before + 2; });
    }

    // The value of a sine of 440 Hz at `frame`; ffmpeg's source has an amplitude of 1/8.
    static double Sine(qint64 frame)
    {
        const double pi = std::acos(-1.0);
        return std::sin(2 * pi * 440 * static_cast<double>(frame) / RateHz) / 8;
    }

    void ExpectSineFrom(qint64 firstFrame, size_t skipped = 0) const
    {
        double worst = 0;
        for (size_t i = skipped; i < sound.taken.size() / 2; ++i) {
            const qint64 frame = firstFrame + static_cast<qint64>(i - skipped);
            worst = std::max(worst, std::abs(sound.taken[2 * i] - Sine(frame)));
        }
        EXPECT_LT(worst, 0.005);
    }

    std::atomic<qint64> now{0};
    KxPlayerClock clock{[this] { return now.load(); }};
    FakeSoundState sound;
    KxAudioOutput output{clock, [this] { return std::make_unique<FakeSound>(sound); }};
    std::shared_ptr<const KxPlaySource> source = PlayerClip::Source(PlayerClip::WithSound());
    KxMediaClock fileClock{0};
};

} // namespace

TEST_F(KxAudioOutputTest, FillsTheDeviceWithWhatTheClockShows)
{
    StartAt(1000000);
    EXPECT_TRUE(sound.isStarted);
    EXPECT_EQ(sound.WaitingFrames(), sound.capacity);
    ExpectSineFrom(RateHz);
    StartAt(0);
    EXPECT_EQ(sound.WaitingFrames(), sound.capacity);
    ExpectSineFrom(0);
}

TEST_F(KxAudioOutputTest, TheClockOfTheFilePlacesTheSound)
{
    fileClock.zeroUs = 500000;
    StartAt(0);
    EXPECT_EQ(sound.WaitingFrames(), sound.capacity);
    ExpectSineFrom(RateHz / 2);
}

TEST_F(KxAudioOutputTest, ContinuesWithoutAGap)
{
    StartAt(0);
    for (int i = 0; i < 20; ++i) {
        sound.Hear(960);
        now += 20000;
        const size_t before = sound.taken.size();
        ASSERT_TRUE(QTest::qWaitFor([&] { return sound.taken.size() > before; }));
    }
    EXPECT_GE(sound.taken.size(), size_t{2} * (9600 + 20 * 960));
    ExpectSineFrom(0);
}

TEST_F(KxAudioOutputTest, WhatIsHeardCorrectsTheClock)
{
    StartAt(0);
    // The device begins 50 ms late.
    now += 50000;
    for (int i = 0; i < 60; ++i) {
        sound.Hear(960);
        now += 20000;
        const size_t before = sound.taken.size();
        ASSERT_TRUE(QTest::qWaitFor([&] { return sound.taken.size() > before; }));
    }
    const qint64 heardUs = qint64{sound.heardFrames} * 1000000 / RateHz;
    EXPECT_NEAR(static_cast<double>(*clock.NowUs()), static_cast<double>(heardUs), 5000);
}

TEST_F(KxAudioOutputTest, ADeviceThatDoesNotPlayLeavesTheClockAlone)
{
    StartAt(0);
    now += 700000;
    ASSERT_TRUE(AwaitLooks());
    EXPECT_EQ(clock.NowUs(), 700000);
}

TEST_F(KxAudioOutputTest, ADeviceThatBeginsLateSkipsToTheClock)
{
    StartAt(0);
    const size_t before = sound.taken.size() / 2;
    now += 1000000;
    sound.Hear(960);
    ASSERT_TRUE(QTest::qWaitFor([&] { return sound.taken.size() / 2 > before; }));
    EXPECT_EQ(clock.NowUs(), 1000000);
    // 8640 frames wait before the first new one.
    ExpectSineFrom(RateHz + 8640, before);
    for (int i = 0; i < 20; ++i) {
        const size_t filled = sound.taken.size();
        sound.Hear(960);
        now += 20000;
        ASSERT_TRUE(QTest::qWaitFor([&] { return sound.taken.size() > filled; }));
    }
    EXPECT_NEAR(static_cast<double>(*clock.NowUs()), 1400000, 2000);
    ExpectSineFrom(RateHz + 8640, before);
}

TEST_F(KxAudioOutputTest, EndsWithTheSound)
{
    StartAt(2300000);
    EXPECT_LE(sound.taken.size() / 2, 4900U);
    EXPECT_GE(sound.taken.size() / 2, 4700U);
    sound.Hear(9600);
    now += 500000;
    ASSERT_TRUE(AwaitLooks());
    EXPECT_EQ(clock.NowUs(), 2800000);
}

TEST_F(KxAudioOutputTest, ADeviceThatHasRunDryLeavesTheClockAlone)
{
    // The last 100 ms of the sound.
    StartAt(2300000);
    ASSERT_LT(sound.WaitingFrames(), sound.capacity);
    sound.Hear(sound.capacity);
    ASSERT_EQ(sound.WaitingFrames(), 0);
    // The clock is ahead of what was heard, but by less than what makes the sound skip.
    now += 200000;
    ASSERT_TRUE(AwaitLooks());
    EXPECT_EQ(clock.NowUs(), 2500000);
}

TEST_F(KxAudioOutputTest, AnExceptionOfTheDeviceEndsTheSoundAndNotTheClock)
{
    sound.throws = true;
    const quint64 run = StartAt(0);
    now += 40000;
    EXPECT_EQ(clock.NowUs(run), 40000);
    EXPECT_TRUE(sound.taken.empty());
}

TEST_F(KxAudioOutputTest, StopsWithTheRun)
{
    StartAt(0);
    clock.Stop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !sound.isStarted; }));
    const size_t before = sound.taken.size();
    output.Start(source, fileClock, 1, {});
    EXPECT_FALSE(sound.isStarted);
    EXPECT_EQ(sound.taken.size(), before);
}

TEST_F(KxAudioOutputTest, ADeviceThatCannotBeOpenedLeavesTheClockRunning)
{
    sound.starts = false;
    const quint64 run = StartAt(0);
    now += 100000;
    EXPECT_EQ(clock.NowUs(run), 100000);
    EXPECT_TRUE(sound.taken.empty());
}

TEST_F(KxAudioOutputTest, ASourceWithoutSoundOpensNothing)
{
    source = PlayerClip::Source(PlayerClip::Numbered());
    StartAt(0);
    EXPECT_FALSE(sound.isStarted);
}

TEST(KxSoundPlayer, WithoutADeviceTheClockRunsByItself)
{
    std::atomic<qint64> now{0};
    std::atomic_bool asked{false};
    KxPlayerClock clock([&now] { return now.load(); });
    KxSoundPlayer player(clock, [&asked]() -> std::unique_ptr<KxSoundDevice> {
        asked = true;
        return nullptr;
    });
    player.Start(PlayerClip::Source(PlayerClip::WithSound()), {}, clock.Start(0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked.load(); }));
    now = 40000;
    EXPECT_EQ(clock.NowUs(), 40000);
}

TEST(KxSoundPlayer, IsDestroyedAtAnyMoment)
{
    const auto source = PlayerClip::Source(PlayerClip::WithSound());
    FakeSoundState sound;
    for (int round = 0; round < 30; ++round) {
        KxPlayerClock clock;
        KxSoundPlayer player(clock, [&sound] { return std::make_unique<FakeSound>(sound); });
        player.Start(source, {}, clock.Start(0));
        if (round % 3 == 0) {
            player.Stop();
        } else if (round % 3 == 1) {
            player.Close();
        }
    }
    EXPECT_LE(sound.WaitingFrames(), sound.capacity);
}
