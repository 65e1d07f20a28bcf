#include <KxCore/KxFrameTime.h>

#include <KxCore/KxTimeText.h>

#include <gtest/gtest.h>

#include <limits>
#include <random>

using KxFrameTime::FromMicroseconds;
using KxFrameTime::Rescale;
using KxFrameTime::Rounding;
using KxFrameTime::ToMicroseconds;

namespace
{

constexpr qint64 Largest = std::numeric_limits<qint64>::max();

constexpr KxRational Rates[] = {{25, 1}, {24000, 1001}, {30000, 1001}, {60000, 1001}, {1, 60}, {1000, 1}, {48000, 1}};

} // namespace

TEST(KxFrameTime, EachRoundingModeRoundsInItsDirection)
{
    EXPECT_EQ(Rescale(7, 1, 3, Rounding::Down), 2);
    EXPECT_EQ(Rescale(7, 1, 3, Rounding::Nearest), 2);
    EXPECT_EQ(Rescale(7, 1, 3, Rounding::Up), 3);
    EXPECT_EQ(Rescale(8, 1, 3, Rounding::Nearest), 3);
    EXPECT_EQ(Rescale(7, 1, 2, Rounding::Nearest), 4);
    for (const Rounding rounding : {Rounding::Down, Rounding::Nearest, Rounding::Up}) {
        EXPECT_EQ(Rescale(9, 1, 3, rounding), 3);
        EXPECT_EQ(Rescale(-9, 1, 3, rounding), -3);
        EXPECT_EQ(Rescale(0, 5, 3, rounding), 0);
    }
}

TEST(KxFrameTime, NegativeValuesRoundInTheSameDirections)
{
    EXPECT_EQ(Rescale(-7, 1, 3, Rounding::Down), -3);
    EXPECT_EQ(Rescale(-7, 1, 3, Rounding::Nearest), -2);
    EXPECT_EQ(Rescale(-7, 1, 3, Rounding::Up), -2);
    EXPECT_EQ(Rescale(-7, 1, 2, Rounding::Nearest), -4);
}

TEST(KxFrameTime, ProductsOfMoreThan64BitsAreExact)
{
    EXPECT_EQ(Rescale(Largest - 1, 1000000007, 1000000007, Rounding::Down), Largest - 1);
    EXPECT_EQ(Rescale(1000000000000000003, 1000000, 1000000, Rounding::Nearest), 1000000000000000003);
    // (10^18 + 3) * 10^6 / 7 = 142857142857142857571428.57…
    EXPECT_EQ(Rescale(1000000000000000003, 1000000, 7000000, Rounding::Down), 142857142857142857);
    EXPECT_EQ(Rescale(1000000000000000003, 1000000, 7000000, Rounding::Up), 142857142857142858);
    EXPECT_EQ(Rescale(-1000000000000000003, 1000000, 7000000, Rounding::Down), -142857142857142858);
}

TEST(KxFrameTime, AResultOfMoreThan64BitsBecomesTheLargest)
{
    EXPECT_EQ(Rescale(Largest, 2, 1, Rounding::Down), Largest);
    EXPECT_EQ(Rescale(-Largest, 2, 1, Rounding::Down), -Largest);
    EXPECT_EQ(Rescale(Largest, Largest, 1, Rounding::Nearest), Largest);
    EXPECT_EQ(Rescale(std::numeric_limits<qint64>::min(), 1, 1, Rounding::Up), -Largest);
}

TEST(KxFrameTime, RescalingAgreesWithLongDivision)
{
    std::mt19937_64 random(7); // NOLINT: the same numbers in every run
    for (int i = 0; i < 2000; ++i) {
        const auto value = static_cast<qint64>(random() >> (1 + i % 40));
        const auto numerator = static_cast<qint64>(random() >> (33 + i % 20));
        const auto denominator = static_cast<qint64>(random() >> (33 + i % 29)) + 1;
        // value = q * d + r: the quotient is q * n + r * n / d, whose parts fit where the result fits.
        const qint64 whole = value / denominator;
        const qint64 rest = value % denominator;
        if (whole > (Largest >> 1) / (numerator + 1)) {
            continue;
        }
        const qint64 expected = whole * numerator + rest * numerator / denominator;
        const bool isExact = rest * numerator % denominator == 0;
        EXPECT_EQ(Rescale(value, numerator, denominator, Rounding::Down), expected);
        EXPECT_EQ(Rescale(value, numerator, denominator, Rounding::Up), expected + (isExact ? 0 : 1));
        EXPECT_EQ(Rescale(-value, numerator, denominator, Rounding::Up), -expected);
    }
}

TEST(KxFrameTime, EveryFrameIsFoundAtItsTimeAndNotBefore)
{
    for (const KxRational& rate : Rates) {
        for (const qint64 frame : {0LL, 1LL, 2LL, 3LL, 7LL, 1001LL, 30001LL, 1080000LL, 10000000000LL}) {
            const qint64 timeUs = ToMicroseconds(frame, rate, Rounding::Up);
            EXPECT_EQ(FromMicroseconds(timeUs, rate, Rounding::Down), frame) << rate.numerator;
            EXPECT_EQ(FromMicroseconds(timeUs - 1, rate, Rounding::Down), frame - 1) << rate.numerator;
        }
    }
}

TEST(KxFrameTime, ASampleIsFoundFromATimeThatWasRoundedDown)
{
    for (const int rateHz : {8000, 11025, 44100, 48000, 192000}) {
        for (qint64 sample = 0; sample < 5000; ++sample) {
            const qint64 timeUs = ToMicroseconds(sample, {rateHz, 1}, Rounding::Down);
            ASSERT_EQ(FromMicroseconds(timeUs, {rateHz, 1}, Rounding::Nearest), sample) << rateHz;
        }
    }
}

TEST(KxFrameTime, TextHasMilliseconds)
{
    EXPECT_EQ(KxFrameTime::Text(0, {25, 1}), QStringLiteral("00:00:00.000"));
    EXPECT_EQ(KxFrameTime::Text(1551, {25, 1}), QStringLiteral("00:01:02.040"));
    // 1.001 s / 24 = 41.7 ms
    EXPECT_EQ(KxFrameTime::Text(1, {24000, 1001}), QStringLiteral("00:00:00.042"));
    EXPECT_EQ(KxFrameTime::Text(25 * 3600 * 101, {25, 1}), QStringLiteral("101:00:00.000"));
    EXPECT_EQ(KxFrameTime::Text(61, {0, 1}), QStringLiteral("00:01:01.000"));
}

TEST(KxFrameTime, LengthTextIsRoundedDownButNeverZero)
{
    EXPECT_EQ(KxFrameTime::LengthText(1260, {30, 1}), QStringLiteral("00:42"));
    EXPECT_EQ(KxFrameTime::LengthText(1289, {30, 1}), QStringLiteral("00:42"));
    EXPECT_EQ(KxFrameTime::LengthText(1, {30, 1}), QStringLiteral("00:01"));
    EXPECT_EQ(KxFrameTime::LengthText(3797 * 25, {25, 1}), QStringLiteral("1:03:17"));
    EXPECT_EQ(KxFrameTime::LengthText(10, {0, 1}), QString());
}

TEST(KxTimeText, WritesTimes)
{
    EXPECT_EQ(KxTimeText::Padded(7, 2), QStringLiteral("07"));
    EXPECT_EQ(KxTimeText::Padded(119, 2), QStringLiteral("119"));
    EXPECT_EQ(KxTimeText::HoursMinutesSeconds(3723), QStringLiteral("01:02:03"));
    EXPECT_EQ(KxTimeText::HoursMinutesSeconds(3599), QStringLiteral("00:59:59"));
    EXPECT_EQ(KxTimeText::HoursMinutesSeconds(360000), QStringLiteral("100:00:00"));
    EXPECT_EQ(KxTimeText::MinutesSeconds(59), QStringLiteral("0:59"));
    EXPECT_EQ(KxTimeText::MinutesSeconds(3723), QStringLiteral("62:03"));
    EXPECT_EQ(KxTimeText::Length(3599), QStringLiteral("59:59"));
    EXPECT_EQ(KxTimeText::Length(3600), QStringLiteral("1:00:00"));
}
