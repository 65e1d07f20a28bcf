#include <KxSubject/KxSubjectDecision.h>

#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr double Rate = 25.0;
/// Where the detected person of each shot is, in fractions of the width.
constexpr double FirstPlace = 0.25;
constexpr double SecondPlace = 0.7;
constexpr std::int64_t Cut = 100;
constexpr std::int64_t Frames = 250;

/// Two shots of 4 and 6 seconds, with a person in each.
KxSubjectRecord TwoShots()
{
    KxSubjectRecord record;
    record.source = {1280, 720, Rate, Frames};
    record.workingSizePx = {320, 180};
    record.boundaries = {{Cut, Cut, Cut, KxShotBoundaryKind::Cut}};
    for (std::int32_t frame = 0; frame < Frames; frame += 5) {
        record.samples.push_back({frame, {}, {}});
        const auto place = static_cast<float>(frame < Cut ? FirstPlace : SecondPlace);
        record.looks.push_back({frame, {{place - 0.05F, 0.2F, 0.1F, 0.6F, 0.9F, KxDetectionKind::Person}}});
    }
    return record;
}

std::vector<KxCropRect> Decide(const KxSubjectChoices& choices, KxIntSize aspect = {9, 16})
{
    KxSubjectRequest request;
    request.aspectWidth = aspect.width;
    request.aspectHeight = aspect.height;
    request.choices = choices;
    return KxDecide(TwoShots(), request, {}, KxCancelToken()).crops;
}

/// The middle of a ball that bounces between 0.2 and 0.4 of the width.
double BallAt(std::int64_t frame)
{
    return 0.3 + 0.1 * std::sin(0.3 * static_cast<double>(frame));
}

double Middle(const KxCropRect& crop)
{
    return crop.x + crop.width / 2.0;
}

KxSubjectChoice Hold(double from, double to, double centre)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Hold;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    choice.centreX = centre;
    return choice;
}

KxSubjectChoice Fit(double from, double to, const std::vector<KxSubjectBox>& boxes = {})
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Fit;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    choice.boxes = boxes;
    return choice;
}

KxSubjectChoice Automatic(double from, double to)
{
    KxSubjectChoice choice;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    return choice;
}

void ExpectWholePicture(const KxCropRect& crop, bool isWhole, std::int64_t frame)
{
    EXPECT_EQ(crop.width == 1.0, isWhole) << frame;
    EXPECT_EQ(crop.x == 0.0 && crop.y == 0.0 && crop.height == 1.0, isWhole || crop.x == 0.0) << frame;
}

} // namespace

TEST(KxSubjectChoices, WithoutChoicesTheCropIsWhereThePersonIs)
{
    const auto crops = Decide({});
    ASSERT_EQ(crops.size(), static_cast<std::size_t>(Frames));
    EXPECT_NEAR(Middle(crops[50]), FirstPlace, 0.05);
    EXPECT_NEAR(Middle(crops[200]), SecondPlace, 0.05);
}

TEST(KxSubjectChoices, AHeldShotIsStillAtTheCentreAndTheOtherShotStays)
{
    const auto automatic = Decide({});
    const auto crops = Decide({Hold(0.0, 4.0, 0.6)});
    for (std::int64_t frame = 0; frame < Frames; ++frame) {
        const KxCropRect& crop = crops[static_cast<std::size_t>(frame)];
        if (frame < Cut) {
            EXPECT_NEAR(Middle(crop), 0.6, 1e-12) << frame;
        } else {
            EXPECT_EQ(crop.x, automatic[static_cast<std::size_t>(frame)].x) << frame;
        }
    }
}

TEST(KxSubjectChoices, AHeldCentreOutsideTheReachOfTheCropIsTheNearestOne)
{
    EXPECT_EQ(Decide({Hold(0.0, 4.0, -3.0)})[50].x, 0.0);
    const KxCropRect right = Decide({Hold(0.0, 4.0, 3.0)})[50];
    EXPECT_NEAR(right.x + right.width, 1.0, 1e-12);
}

TEST(KxSubjectChoices, AHoldAcrossACutAppliesToBothShots)
{
    const auto crops = Decide({Hold(0.0, 10.0, 0.5)});
    EXPECT_NEAR(Middle(crops[50]), 0.5, 1e-12);
    EXPECT_NEAR(Middle(crops[200]), 0.5, 1e-12);
}

TEST(KxSubjectChoices, AHoldInTheMiddleOfAShotIsReachedAndLeftWithoutAJump)
{
    const auto crops = Decide({Hold(6.0, 8.0, 0.35)});
    for (std::size_t frame = 150; frame < 200; ++frame) {
        EXPECT_NEAR(Middle(crops[frame]), 0.35, 1e-12) << frame;
    }
    for (std::size_t frame = Cut + 1; frame < crops.size(); ++frame) {
        EXPECT_LT(std::abs(crops[frame].x - crops[frame - 1].x), 0.04) << frame;
    }
    EXPECT_NEAR(Middle(crops[Cut]), SecondPlace, 0.05);
    EXPECT_NEAR(Middle(crops.back()), SecondPlace, 0.05);
}

TEST(KxSubjectChoices, FitShowsTheWholePictureInItsRangeAlone)
{
    const auto crops = Decide({Fit(4.0, 6.0)});
    for (std::int64_t frame = 0; frame < Frames; ++frame) {
        ExpectWholePicture(crops[static_cast<std::size_t>(frame)], frame >= Cut && frame < 150, frame);
    }
}

TEST(KxSubjectChoices, FitLeavesOutTheBars)
{
    KxSubjectRecord record = TwoShots();
    record.content = {0.0, 0.125, 1.0, 0.75};
    KxSubjectRequest request;
    request.choices = {Fit(0.0, 10.0)};
    const KxCropRect crop = KxDecide(record, request, {}, KxCancelToken()).crops[10];
    EXPECT_EQ(crop.y, 0.125);
    EXPECT_EQ(crop.height, 0.75);
    EXPECT_EQ(crop.width, 1.0);
}

TEST(KxSubjectChoices, BoxesThatFitIntoTheCropAreHeldAndOthersShowTheWholePicture)
{
    const std::vector<KxSubjectBox> near{{0.4, 0.1, 0.1, 0.5}, {0.55, 0.1, 0.1, 0.5}};
    const std::vector<KxSubjectBox> apart{{0.1, 0.1, 0.1, 0.5}, {0.55, 0.1, 0.1, 0.5}};
    EXPECT_NEAR(Middle(Decide({Fit(0.0, 4.0, near)})[50]), 0.525, 1e-12);
    EXPECT_EQ(Decide({Fit(0.0, 4.0, apart)})[50].width, 1.0);
    const KxCropRect square = Decide({Fit(0.0, 4.0, apart)}, {1, 1})[50];
    EXPECT_LT(square.width, 0.6) << "both fit into a square";
    EXPECT_LE(square.x, 0.1);
    EXPECT_GE(square.x + square.width, 0.65);
}

TEST(KxSubjectChoices, ALaterChoiceReplacesAnEarlierOneWhereTheyOverlap)
{
    const auto crops = Decide({Hold(4.0, 10.0, 0.3), Fit(6.0, 7.0), Hold(8.0, 10.0, 0.8)});
    EXPECT_NEAR(Middle(crops[110]), 0.3, 1e-12);
    EXPECT_EQ(crops[160].width, 1.0);
    EXPECT_NEAR(Middle(crops[180]), 0.3, 1e-12);
    EXPECT_NEAR(Middle(crops[220]), 0.8, 1e-12);
}

TEST(KxSubjectChoices, AutomaticTakesEarlierChoicesBack)
{
    const auto automatic = Decide({});
    const auto crops = Decide({Hold(0.0, 10.0, 0.5), Automatic(0.0, 4.0), Fit(4.0, 10.0), Automatic(4.0, 10.0)});
    for (std::size_t frame = 0; frame < crops.size(); ++frame) {
        EXPECT_EQ(crops[frame].x, automatic[frame].x) << frame;
        EXPECT_EQ(crops[frame].width, automatic[frame].width) << frame;
    }
}

TEST(KxSubjectChoices, RangesOutsideTheVideoOrWithoutLengthChangeNothing)
{
    const auto automatic = Decide({});
    const double infinity = std::numeric_limits<double>::infinity();
    const auto crops = Decide({Hold(-5.0, 0.0, 0.5), Hold(10.0, infinity, 0.5), Hold(3.0, 3.0, 0.5),
                               Hold(6.0, 2.0, 0.5), Fit(std::nan(""), std::nan(""))});
    for (std::size_t frame = 0; frame < crops.size(); ++frame) {
        EXPECT_EQ(crops[frame].x, automatic[frame].x) << frame;
        EXPECT_EQ(crops[frame].width, automatic[frame].width) << frame;
    }
}

TEST(KxSubjectChoices, ATallPictureIsHeldAtItsHeight)
{
    KxSubjectRecord record = TwoShots();
    record.source.pictureWidthPx = 720;
    record.source.pictureHeightPx = 1280;
    KxSubjectRequest request;
    request.aspectWidth = 1;
    request.aspectHeight = 1;
    KxSubjectChoice hold = Hold(0.0, 4.0, 0.1);
    hold.centreY = 0.6;
    request.choices = {hold};
    const KxCropRect crop = KxDecide(record, request, {}, KxCancelToken()).crops[50];
    EXPECT_NEAR(crop.y + crop.height / 2.0, 0.6, 1e-12);
}

TEST(KxSubjectChoices, WhatTheAutomaticCropHoldsAlreadyStaysAsItIs)
{
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    follow.seeds = {{1.0, {FirstPlace - 0.04, 0.2, 0.1, 0.6}}};
    const auto automatic = Decide({});
    const auto crops = Decide({follow});
    for (std::size_t frame = 0; frame < crops.size(); ++frame) {
        EXPECT_EQ(crops[frame].x, automatic[frame].x) << frame;
    }
}

TEST(KxSubjectChoices, ATrackThatNoCropHoldsBetterLeavesTheAutomaticCropAsItIs)
{
    // The track jumps to the other side and back, faster than a crop can.
    KxSubjectRequest request;
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    follow.seeds = {{1.0, {0.15, 0.2, 0.1, 0.6}}};
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < Cut; frame += 2) {
        const bool isAway = frame % 10 >= 6;
        track.points.push_back({frame, {isAway ? 0.8 : 0.15, 0.2, 0.1, 0.6}, 1.0F});
    }
    request.choices = {follow};
    request.tracks = {track};
    const auto automatic = Decide({});
    const auto crops = KxDecide(TwoShots(), request, {}, KxCancelToken()).crops;
    for (std::size_t frame = 0; frame < Cut; ++frame) {
        EXPECT_EQ(crops[frame].x, automatic[frame].x) << frame;
    }
}

TEST(KxSubjectChoices, TheAutomaticCropMovesOnlyAsFarAsABoxThatAPersonDrewNeeds)
{
    // Half of the box lies outside the automatic crop, which reaches to 0.41 of the width.
    KxSubjectRequest request;
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < Cut; frame += 2) {
        track.points.push_back({frame, {0.36, 0.2, 0.1, 0.6}, 1.0F});
    }
    request.tracks = {track};
    const auto middleFor = [&](KxSubjectSeed::Extent extent) {
        follow.seeds = {{1.0, {0.36, 0.2, 0.1, 0.6}, extent}};
        request.choices = {follow};
        return Middle(KxDecide(TwoShots(), request, {}, KxCancelToken()).crops[50]);
    };
    const double room = 9.0 / 16.0 * 720.0 / 1280.0 - 0.1;
    EXPECT_NEAR(middleFor(KxSubjectSeed::Extent::Drawn), 0.41 - room / 4.0, 0.005);
    EXPECT_GT(middleFor(KxSubjectSeed::Extent::Guessed), 0.37);
}

TEST(KxSubjectChoices, WhatIsFollowedOutweighsWhatTheSignalsPrefer)
{
    KxSubjectRequest request;
    KxSubjectChoice follow;
    follow.kind = KxChoiceKind::Follow;
    follow.seeds = {{1.0, {0.75, 0.2, 0.1, 0.6}}};
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < Cut; frame += 2) {
        track.points.push_back({frame, {0.75, 0.2, 0.1, 0.6}, 1.0F});
    }
    request.choices = {follow};
    request.tracks = {track};
    request.wantsFindings = true;
    const auto [crops, findings] = KxDecide(TwoShots(), request, {}, KxCancelToken());
    for (const std::size_t frame : {0U, 50U, 99U}) {
        EXPECT_NEAR(Middle(crops[frame]), 0.8, 0.06) << frame;
    }
    EXPECT_NEAR(Middle(crops[200]), SecondPlace, 0.05) << "another shot";
    EXPECT_EQ(findings.shots.size(), 2U) << "each shot is recorded once";
    EXPECT_EQ(findings.samples.size(), static_cast<std::size_t>(Frames / 5));
}

namespace
{

/// A ball bounces fast; something at the right stands out, without movement.
KxSubjectRecord FastBall()
{
    KxSubjectRecord record;
    record.source = {1280, 720, Rate, Frames};
    record.workingSizePx = {320, 180};
    KxMover mover;
    mover.seconds = 10.0F;
    mover.travel = 3.0F;
    for (std::int32_t frame = 0; frame < Frames; frame += 2) {
        const double place = BallAt(frame);
        KxSignalProfile motion;
        motion.Add(place - 0.04, place + 0.04, 1.0);
        KxSignalSample sample{frame, {}, {}};
        sample.motion[0] = KxPackedProfile(motion);
        KxSignalProfile saliency;
        saliency.Add(0.78, 0.88, 1.0);
        sample.saliency[0] = KxPackedProfile(saliency);
        record.samples.push_back(sample);
        const auto packed = [](double value) { return static_cast<std::uint8_t>(std::lround(value * 255.0)); };
        mover.boxes.push_back({packed(place - 0.04), packed(0.45), packed(place + 0.04), packed(0.55)});
    }
    for (int level = 0; level < 4; ++level) {
        record.movers.push_back(mover);
    }
    return record;
}

KxSubjectBox BallBox(std::int64_t frame)
{
    return {BallAt(frame) - 0.05, 0.43, 0.1, 0.14};
}

} // namespace

TEST(KxSubjectChoices, WhatIsAvoidedDoesNotAttractTheCropWhereTheTrackerLosesIt)
{
    KxSubjectRequest request;
    KxSubjectChoice avoid;
    avoid.kind = KxChoiceKind::Avoid;
    avoid.seeds = {{0.0, BallBox(0)}};
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < Frames; frame += 2) {
        track.points.push_back({frame, BallBox(frame < 10 ? frame : 10), frame < 10 ? 1.0F : 0.0F});
    }
    const auto automatic = KxDecide(FastBall(), request, {}, KxCancelToken()).crops;
    request.choices = {avoid};
    request.tracks = {track};
    const auto crops = KxDecide(FastBall(), request, {}, KxCancelToken()).crops;
    for (const std::size_t frame : {30U, 100U, 180U, 240U}) {
        EXPECT_LT(Middle(automatic[frame]), 0.65) << frame;
        EXPECT_NEAR(Middle(crops[frame]), 0.83, 0.06) << frame;
    }
}
