#include <Apps/Reframe/FoundSignals.h>

#include <gtest/gtest.h>

namespace
{

KxSubjectFindings::Shot Shot(float confidence, float evidence)
{
    KxSubjectFindings::Shot shot;
    shot.confidence = confidence;
    shot.evidence = evidence;
    return shot;
}

} // namespace

TEST(FoundSignals, AShotWhoseEvidenceTheCropHoldsIsNotDoubtful)
{
    EXPECT_TRUE(FoundSignals::Doubt(Shot(0.9F, 1.0F)).isEmpty());
    EXPECT_EQ(FoundSignals::Confidence(Shot(0.624F, 1.0F)), QStringLiteral("62 %"));
}

TEST(FoundSignals, TheReasonOfADoubtIsNamed)
{
    EXPECT_EQ(FoundSignals::Doubt(Shot(0.4F, 1.0F)), QStringLiteral("what stands out is in several places"));
    EXPECT_EQ(FoundSignals::Doubt(Shot(0.0F, 0.0F)), QStringLiteral("nothing stands out"));
}

TEST(FoundSignals, SeveralPeopleAreAReasonOfTheirOwn)
{
    KxSubjectFindings::Shot shot = Shot(0.4F, 1.0F);
    shot.dominantSignal = KxSignal::Faces;
    EXPECT_EQ(FoundSignals::Doubt(shot), QStringLiteral("people or animals are in several places"));
}

TEST(FoundSignals, WhatAShotDoesAboutSpeechIsNamed)
{
    KxSubjectFindings::Shot shot = Shot(0.9F, 1.0F);
    EXPECT_TRUE(FoundSignals::Speech(shot).isEmpty());
    shot.speech = KxSpeech::Held;
    EXPECT_EQ(FoundSignals::Speech(shot), QStringLiteral("holds who speaks"));
    shot.speech = KxSpeech::Followed;
    EXPECT_EQ(FoundSignals::Speech(shot), QStringLiteral("follows who speaks"));
    shot.speakerChanges = 1;
    EXPECT_EQ(FoundSignals::Speech(shot), QStringLiteral("follows who speaks, with 1 cut"));
    shot.speakerChanges = 4;
    EXPECT_EQ(FoundSignals::Speech(shot), QStringLiteral("follows who speaks, with 4 cuts"));
    EXPECT_TRUE(FoundSignals::Doubt(shot).isEmpty());
}

TEST(FoundSignals, UnclearSpeechIsADoubt)
{
    KxSubjectFindings::Shot shot = Shot(0.9F, 1.0F);
    shot.speech = KxSpeech::Unclear;
    EXPECT_EQ(FoundSignals::Doubt(shot), QStringLiteral("it is not clear who speaks"));
    shot.speech = KxSpeech::Followed;
    shot.confidence = 0.5F;
    EXPECT_EQ(FoundSignals::Doubt(shot), QStringLiteral("who speaks is hardly clear"));
}
