#include <KxSubject/Choice/KxFollowEvidence.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr double Rate = 25.0;

KxSubjectChoice Pointed(const std::vector<KxSubjectSeed>& seeds)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    choice.seeds = seeds;
    return choice;
}

/// Ten seconds with a seed at the start.
KxFollowEvidence Evidence(const KxFollowTrack& track,
                          const KxSubjectChoice& choice = Pointed({{0.0, {0.1, 0.2, 0.1, 0.4}}}))
{
    return {choice, track, {0, 250, 0}, {}, {Rate, KxAxis::Across}};
}

KxFollowTrack::Point Seen(std::int32_t frame, double left, float confidence)
{
    return {frame, {left, 0.2, 0.1, 0.4}, confidence};
}

/// Evenly spread evidence of sum 1.
KxSignalProfile Even()
{
    KxSignalProfile profile;
    profile.Add(0.0, 1.0, 1.0);
    return profile;
}

float SumIn(const KxSignalProfile& profile, double from, double to)
{
    float sum = 0.0F;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double x = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        sum += x > from && x < to ? profile.share[bin] : 0.0F;
    }
    return sum;
}

} // namespace

TEST(KxFollowEvidence, ATrackedBoxOutweighsWhatIsFar)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(100, 0.7, 1.0F)}};
    const KxSignalProfile followed = Evidence(track).Followed(Even(), 100);
    EXPECT_GT(SumIn(followed, 0.69, 0.81), 2.0F);
    EXPECT_LT(SumIn(followed, 0.0, 0.4), 0.05F);
}

TEST(KxFollowEvidence, BetweenPicturesTheBoxIsOnTheLine)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(50, 0.2, 1.0F), Seen(52, 0.4, 1.0F)}};
    EXPECT_GT(SumIn(Evidence(track).Followed(Even(), 51), 0.29, 0.41), 2.0F);
}

TEST(KxFollowEvidence, TheGateWidensWhileTheThingIsLost)
{
    KxFollowTrack track{{Seen(0, 0.1, 1.0F)}};
    for (std::int32_t frame = 2; frame < 250; frame += 2) {
        track.points.push_back(Seen(frame, 0.1, 0.0F));
    }
    const KxFollowEvidence evidence = Evidence(track);
    const float soon = SumIn(evidence.Followed(Even(), 12), 0.6, 0.9);
    const float later = SumIn(evidence.Followed(Even(), 50), 0.6, 0.9);
    const float latest = SumIn(evidence.Followed(Even(), 240), 0.6, 0.9);
    EXPECT_LT(soon, 0.4F * later);
    EXPECT_GT(later, 0.15F);
    EXPECT_NEAR(latest, SumIn(Even(), 0.6, 0.9), 0.02F) << "all that the signals say, as without a choice";
}

TEST(KxFollowEvidence, NearASeedThePersonOutweighsTheTracker)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(4, 0.1, 0.31F), Seen(100, 0.1, 0.31F)}};
    const KxFollowEvidence evidence = Evidence(track);
    EXPECT_GT(SumIn(evidence.Followed(Even(), 4), 0.09, 0.21), 4.0F);
    EXPECT_LT(SumIn(evidence.Followed(Even(), 100), 0.09, 0.21), 1.0F);
}

TEST(KxFollowEvidence, WithoutATrackTheSeedsAreKnown)
{
    const KxSubjectChoice box = Pointed({{4.0, {0.6, 0.2, 0.2, 0.4}}});
    EXPECT_GT(SumIn(Evidence({}, box).Followed(Even(), 100), 0.59, 0.81), 4.0F);
    const KxSubjectChoice point = Pointed({{4.0, {0.6, 0.4, 0.0, 0.0}}});
    EXPECT_GT(SumIn(Evidence({}, point).Followed(Even(), 100), 0.52, 0.68), 4.0F);
}

TEST(KxFollowEvidence, WhatWasTrackedInAnotherShotSaysNothing)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(240, 0.1, 1.0F), Seen(260, 0.8, 1.0F), Seen(400, 0.8, 1.0F)}};
    const KxSubjectChoice choice = Pointed({{0.0, {0.1, 0.2, 0.1, 0.4}}, {10.4, {0.8, 0.2, 0.1, 0.4}}});
    EXPECT_GT(SumIn(Evidence(track, choice).Followed(Even(), 244), 0.09, 0.21), 1.0F);
    EXPECT_LT(SumIn(Evidence(track, choice).Followed(Even(), 244), 0.7, 1.0), 0.05F);
}

TEST(KxFollowEvidence, WhatIsAvoidedLosesItsEvidenceWhileItIsSeen)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(100, 0.1, 1.0F), Seen(102, 0.1, 0.0F), Seen(250, 0.1, 0.0F)}};
    const KxFollowEvidence evidence = Evidence(track);
    const float all = SumIn(Even(), 0.1, 0.2);
    const KxSignalProfile left = evidence.WithoutAvoided(Even(), 100);
    EXPECT_NEAR(SumIn(left, 0.1, 0.2), 0.1F * all, 0.03F * all);
    EXPECT_NEAR(left.Sum(), Even().Sum(), 1e-4F) << "what is left counts for all";
    EXPECT_EQ(SumIn(evidence.WithoutAvoided(Even(), 240), 0.1, 0.2), all) << "it is lost";
    KxSignalProfile thingAlone;
    thingAlone.Add(0.1, 0.2, 1.0);
    EXPECT_LT(evidence.WithoutAvoided(thingAlone, 100).Sum(), 0.35F) << "nothing is left";
}

TEST(KxFollowEvidence, TheShareThatACropHoldsCountsWhatItCouldHold)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(10, 0.5, 1.0F), Seen(20, 0.9, 0.0F)}};
    const KxFollowEvidence evidence = Evidence(track);
    const auto still = [](double centre) { return [centre](std::int64_t) { return centre; }; };
    EXPECT_NEAR(evidence.HeldBy(still(0.15), 0.2), 2.0 / 3.0, 1e-9) << "one of two; nobody knows where the lost one is";
    EXPECT_NEAR(evidence.HeldBy(still(0.3), 0.3), 0.5, 1e-9) << "half of one";
    EXPECT_NEAR(evidence.HeldBy(still(0.15), 0.05), 2.0 / 3.0, 1e-9) << "all that such a crop can hold of the first";
    EXPECT_NEAR(evidence.HeldBy(still(0.161), 0.1), 2.0 / 3.0, 1e-2) << "what is near its edge may not be of the thing";
}

TEST(KxFollowEvidence, ACropMovesOnlyAsFarAsItMustToHoldTheThingWithSomeRoom)
{
    KxFollowTrack track{{Seen(0, 0.4, 1.0F), Seen(10, 0.4, 1.0F), Seen(50, 0.4, 1.0F), Seen(100, 0.4, 0.0F)}};
    EXPECT_NEAR(Evidence(track).Holding(0.47, 10, 0.3), 0.47, 1e-9) << "it is inside";
    EXPECT_NEAR(Evidence(track).Holding(0.1, 10, 0.3), 0.4, 1e-9) << "half of the room to the left of it";
    EXPECT_NEAR(Evidence(track).Holding(0.9, 10, 0.3), 0.5, 1e-9);
    EXPECT_NEAR(Evidence(track).Holding(0.1, 10, 0.06), 0.44, 1e-9) << "the crop is smaller, and stays inside";
    track.points[2].isDoubted = true;
    EXPECT_NEAR(Evidence(track).Holding(0.1, 50, 0.3), 0.4, 1e-9) << "doubted";
}

TEST(KxFollowEvidence, ACropStaysWhereTheThingIsLostForAMoment)
{
    const KxFollowTrack track{{Seen(0, 0.4, 1.0F), Seen(10, 0.4, 0.0F), Seen(40, 0.6, 1.0F), Seen(100, 0.6, 0.0F)}};
    EXPECT_NEAR(Evidence(track).Holding(0.1, 20, 0.1), 0.55, 1e-9) << "on the line to where it is seen again";
    EXPECT_NEAR(Evidence(track).Holding(0.1, 60, 0.1), 0.65, 1e-9) << "where it was seen last";
    EXPECT_NEAR(Evidence(track).Holding(0.1, 100, 0.1), 0.1, 1e-9) << "lost for longer";
}

TEST(KxFollowEvidence, WhereTheTrackIsDoubtedNothingSaysThatTheCropDoesNotHoldTheThing)
{
    KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(10, 0.5, 1.0F), Seen(20, 0.9, 1.0F)}};
    const auto onTheFirst = [](std::int64_t) { return 0.15; };
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 1.0 / 3.0, 1e-9);
    track.points[2].isDoubted = true;
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 2.0 / 3.0, 1e-9);
    track.points[1].isDoubted = true;
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 1.0, 1e-9);
}

TEST(KxFollowEvidence, WhereTheTrackIsAmbiguousItSaysNothing)
{
    KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(10, 0.5, 1.0F), Seen(20, 0.9, 1.0F)}};
    const auto onTheFirst = [](std::int64_t) { return 0.15; };
    track.points[2].isAmbiguous = true;
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 1.0 / 2.0, 1e-9);
    track.points[1].isAmbiguous = true;
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 1.0, 1e-9);
    track.points[1].isAmbiguous = false;
    track.points[0].isAmbiguous = true;
    EXPECT_NEAR(Evidence(track).HeldBy(onTheFirst, 0.2), 0.0, 1e-9);
}

TEST(KxFollowEvidence, HeldAtItsSeedsIsTheLeastShareOfTheirBoxes)
{
    const KxFollowTrack track{{Seen(0, 0.1, 1.0F), Seen(50, 0.7, 1.0F), Seen(100, 0.3, 1.0F)}};
    const KxFollowEvidence evidence =
        Evidence(track, Pointed({{0.0, {0.1, 0.2, 0.1, 0.4}}, {4.0, {0.3, 0.2, 0.1, 0.4}}}));
    const auto heldAround = [&evidence](double centre) {
        return evidence.HeldAtSeeds([centre](std::int64_t) { return centre; }, 0.3);
    };
    EXPECT_NEAR(heldAround(0.25), 1.0, 1e-9) << "where it is between the seeds says nothing";
    EXPECT_NEAR(heldAround(0.2), 0.5, 1e-9) << "at the second one";
    EXPECT_NEAR(heldAround(0.34), 0.1, 1e-9) << "at the first one";
}
