#include <KxSubject/Choice/KxChosenEvidence.h>

#include <gtest/gtest.h>

namespace
{

constexpr double Rate = 25.0;
constexpr std::int64_t Frames = 100;
constexpr double Extent = 0.3;

/// What follows a box of the width 0.1 that stays at 0.4; half of the room beside it are 0.05 on each side.
KxChosenEvidence Following(const std::vector<KxSubjectSeed::Extent>& extents,
                           const std::vector<KxDetectionLook>& looks = {})
{
    const KxSubjectBox box{0.4, 0.2, 0.1, 0.4};
    KxSubjectRequest request;
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    for (const KxSubjectSeed::Extent extent : extents) {
        choice.seeds.push_back({0.0, box, extent});
    }
    request.choices = {choice};
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < Frames; frame += 2) {
        track.points.push_back({frame, box, 1.0F});
    }
    request.tracks = {track};
    KxSubjectRecord record;
    record.source = {1280, 720, Rate, Frames};
    record.looks = looks;
    return {request, KxChoiceRanges(request.choices, Rate, 0, Frames), {}, record, KxAxis::Across};
}

KxChosenEvidence::CentreAt Still(double centre)
{
    return [centre](std::int64_t) { return centre; };
}

} // namespace

TEST(KxChosenEvidence, TheAutomaticCropIsAdjustedToWhatAPersonDrew)
{
    KxChosenEvidence drawn = Following({KxSubjectSeed::Extent::Drawn});
    EXPECT_FALSE(drawn.Adjusts());
    drawn.AdjustAutomatic(Still(0.2));
    ASSERT_TRUE(drawn.Adjusts());
    EXPECT_NEAR(drawn.AdjustedCentre(50, Extent).value(), 0.4, 1e-9);
    EXPECT_FALSE(drawn.AdjustedCentre(Frames, Extent)) << "outside the choice";
    KxChosenEvidence guessed = Following({KxSubjectSeed::Extent::Guessed});
    guessed.AdjustAutomatic(Still(0.2));
    EXPECT_FALSE(guessed.Adjusts()) << "nobody knows how large it is";
    EXPECT_TRUE(guessed.Follows());
}

TEST(KxChosenEvidence, WhatACropThatFollowsItHoldsMoreOfIsFollowed)
{
    KxChosenEvidence chosen = Following({KxSubjectSeed::Extent::Drawn});
    chosen.AdjustAutomatic(Still(0.2));
    chosen.FollowWhatIsHeldBetter(Still(0.4), Still(0.45), Extent);
    EXPECT_TRUE(chosen.Adjusts()) << "both hold it";
    chosen.FollowWhatIsHeldBetter(Still(0.26), Still(0.45), Extent);
    EXPECT_FALSE(chosen.Adjusts());
    EXPECT_TRUE(chosen.Follows());
}

TEST(KxChosenEvidence, TheAutomaticCropStaysUnlessTheOtherMissesHalfAsMuch)
{
    // Less what is near its edge, the box reaches from 0.41 to 0.49: around 0.28, a crop misses 0.75 of it.
    const auto followsWith = [](KxSubjectSeed::Extent extent, double centre) {
        KxChosenEvidence chosen = Following({extent});
        chosen.AdjustAutomatic(Still(0.28));
        chosen.LeaveWhatGainsLittle(Still(centre), Still(centre), Extent);
        return chosen.Follows();
    };
    EXPECT_TRUE(followsWith(KxSubjectSeed::Extent::Drawn, 0.32)) << "it misses 0.25";
    EXPECT_FALSE(followsWith(KxSubjectSeed::Extent::Drawn, 0.3)) << "it misses 0.5";
    EXPECT_TRUE(followsWith(KxSubjectSeed::Extent::Guessed, 0.3)) << "nobody knows how much it misses";
    EXPECT_FALSE(followsWith(KxSubjectSeed::Extent::Guessed, 0.28)) << "no better";
}

TEST(KxChosenEvidence, AGuessIsLeftToTheAutomaticCropThatHoldsItWhereItWasClickedOn)
{
    const auto followsWith = [](const std::vector<KxSubjectSeed::Extent>& extents, double centre,
                                const std::vector<KxDetectionLook>& looks) {
        KxChosenEvidence chosen = Following(extents, looks);
        // It leaves the thing soon.
        chosen.LeaveWhatIsHeld([centre](std::int64_t frame) { return frame < 10 ? centre : 0.8; }, Extent);
        return chosen.Follows();
    };
    const std::vector guessed{KxSubjectSeed::Extent::Guessed};
    const std::vector<KxDetectionLook> nothing{{0, {}}};
    EXPECT_FALSE(followsWith(guessed, 0.4, nothing));
    EXPECT_FALSE(followsWith(guessed, 0.33, nothing)) << "it holds four fifths";
    EXPECT_TRUE(followsWith(guessed, 0.32, nothing)) << "it holds seven tenths";
    EXPECT_TRUE(followsWith({KxSubjectSeed::Extent::Drawn}, 0.4, nothing));
    EXPECT_TRUE(followsWith({KxSubjectSeed::Extent::Guessed, KxSubjectSeed::Extent::Drawn}, 0.4, nothing))
        << "the person then drew what is meant";
    const std::vector<KxDetectionLook> seen{{0, {{0.4F, 0.2F, 0.1F, 0.4F, 0.6F, KxDetectionKind::Vehicle}}}};
    EXPECT_TRUE(followsWith(guessed, 0.4, seen)) << "its extent is known";
    EXPECT_TRUE(followsWith(guessed, 0.4, {})) << "without the detector the automatic choice is less sure";
}
