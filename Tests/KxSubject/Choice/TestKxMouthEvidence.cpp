#include <KxSubject/Choice/KxMouthEvidence.h>

#include <Tests/KxSubject/MadeSpeech.h>

#include <gtest/gtest.h>

#include <numeric>

namespace
{

const KxSubjectOptions::Speech Options;
constexpr std::int64_t Levels = 500;

double Mean(const KxSeries::Values& values, std::size_t from, std::size_t to)
{
    return std::accumulate(values.begin() + static_cast<std::ptrdiff_t>(from),
                           values.begin() + static_cast<std::ptrdiff_t>(to), 0.0) /
           static_cast<double>(to - from);
}

KxSubjectRecord Interview()
{
    return MadeSpeech::Record({20.0, {0.25, 0.75}, {{0.0, 10.0, 0}, {10.0, 20.0, 1}}, {}});
}

/// How well the first speaker's mouth fits a sound that is late by so many looks.
double CorrelationIfLateBy(std::size_t looks)
{
    KxSubjectRecord record = Interview();
    std::vector<std::int16_t>& levels = record.sound[0].levels;
    levels.insert(levels.begin(), looks, levels.front());
    levels.resize(Levels);
    const KxHeardSound sound(record, Options, 0, Levels);
    return Mean(KxMouthEvidence(record, Options, sound, 0, {0}).Correlation(), 10, 240);
}

/// Who speaks nods with the own voice: the head moves more than the mouth, which moves with it, and the mouth alone
/// besides.
KxSubjectRecord NoddingSpeakers()
{
    KxSubjectRecord record = Interview();
    for (KxMouthTrack& mouth : record.mouths) {
        for (KxMouthLook& look : mouth.looks) {
            const int nod = 3 * std::max(0, look.movement - static_cast<int>(0.07 * KxMouthLook::One));
            look.head = static_cast<std::uint16_t>(look.head + nod);
            look.movement = static_cast<std::uint16_t>(look.movement + nod / 2);
            look.opening = 0;
        }
    }
    return record;
}

/// In the half of the interview from `own` on than in the other half.
void ExpectMoreActivityIn(const KxMouthEvidence& mouth, std::size_t own)
{
    const std::size_t other = 250 - own;
    EXPECT_GT(Mean(mouth.Activity(), own + 10, own + 240), Mean(mouth.Activity(), other + 10, other + 240) + 0.2)
        << "from " << own;
}

} // namespace

TEST(KxMouthEvidence, ANodWithTheOwnVoiceDoesNotHideTheMouth)
{
    const KxSubjectRecord record = NoddingSpeakers();
    const KxHeardSound sound(record, Options, 0, Levels);
    for (const std::size_t person : {0U, 1U}) {
        const KxMouthEvidence mouth(record, Options, sound, 0, {person});
        const std::size_t own = person == 0 ? 0 : 250;
        ExpectMoreActivityIn(mouth, own);
        EXPECT_GT(Mean(mouth.Correlation(), own + 10, own + 240), -0.05) << person;
    }
}

TEST(KxMouthEvidence, AMouthThatOnlyMovesWithItsHeadDoesNotCorrelate)
{
    KxSubjectRecord record = Interview();
    for (KxMouthLook& look : record.mouths[0].looks) {
        look.head = look.movement;
        look.movement = static_cast<std::uint16_t>(2 * look.head);
        look.opening = 0;
    }
    const KxHeardSound sound(record, Options, 0, Levels);
    EXPECT_LT(Mean(KxMouthEvidence(record, Options, sound, 0, {0}).Correlation(), 10, 240), 0.1);
}

TEST(KxMouthEvidence, AMouthThatMovesWithTheSoundCorrelates)
{
    const KxSubjectRecord record = Interview();
    const KxHeardSound sound(record, Options, 0, Levels);
    for (const std::size_t person : {0U, 1U}) {
        const KxMouthEvidence mouth(record, Options, sound, 0, {person});
        const std::size_t own = person == 0 ? 0 : 250;
        EXPECT_GT(Mean(mouth.Correlation(), own + 10, own + 240), 0.3) << person;
        EXPECT_LT(Mean(mouth.Correlation(), 250 - own + 10, 250 - own + 240), 0.15) << person;
        ExpectMoreActivityIn(mouth, own);
    }
}

TEST(KxMouthEvidence, SoundThatIsLateStillCorrelates)
{
    EXPECT_GT(CorrelationIfLateBy(3), 0.3);
}

TEST(KxMouthEvidence, SoundThatIsMuchTooLateDoesNotCorrelate)
{
    EXPECT_LT(CorrelationIfLateBy(40), 0.2);
}

TEST(KxMouthEvidence, WhoIsNotMeasuredHasNothingInFavour)
{
    KxSubjectRecord record = Interview();
    std::vector<KxMouthLook>& looks = record.mouths[0].looks;
    looks.erase(looks.begin() + 125, looks.end());
    const KxHeardSound sound(record, Options, 0, Levels);
    const KxMouthEvidence mouth(record, Options, sound, 0, {0});
    EXPECT_NEAR(mouth.MeasuredSeconds(), 10.0, 0.2);
    const KxSeries::Values emissions = mouth.Emissions(sound.Gate());
    EXPECT_GT(Mean(emissions, 10, 240), 0.2);
    EXPECT_LT(Mean(emissions, 260, 490), -0.2);
}

TEST(KxMouthEvidence, WhileTheGateIsShutNothingCounts)
{
    const KxSubjectRecord record = Interview();
    const KxHeardSound sound(record, Options, 0, Levels);
    const KxMouthEvidence mouth(record, Options, sound, 0, {0});
    const KxSeries::Values emissions = mouth.Emissions(std::vector<bool>(Levels, false));
    EXPECT_EQ(Mean(emissions, 0, Levels), 0.0);
}

TEST(KxMouthEvidence, ANumberOfPicturesBetweenLooksMakesLittleDifference)
{
    // Every second look is dropped, as where the video has few pictures.
    KxSubjectRecord record = Interview();
    for (KxMouthTrack& mouth : record.mouths) {
        std::vector<KxMouthLook> kept;
        for (std::size_t i = 1; i < mouth.looks.size(); i += 2) {
            KxMouthLook look = mouth.looks[i];
            look.frames = 4;
            look.opening = static_cast<std::int16_t>(look.opening + mouth.looks[i - 1].opening);
            kept.push_back(look);
        }
        mouth.looks = kept;
    }
    const KxHeardSound sound(record, Options, 0, Levels);
    EXPECT_GT(Mean(KxMouthEvidence(record, Options, sound, 0, {0}).Correlation(), 10, 240), 0.15);
}
