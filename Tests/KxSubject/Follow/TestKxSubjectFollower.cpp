#include <KxSubject/Follow/KxSubjectFollower.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectOptions.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr double Rate = 30.0;
const cv::Size PictureSize(320, 180);

KxSubjectRecord Record(std::int64_t frames, const std::vector<std::int64_t>& cuts = {})
{
    KxSubjectRecord record;
    record.source = {1280, 720, Rate, frames};
    record.workingSizePx = {PictureSize.width, PictureSize.height};
    for (const std::int64_t cut : cuts) {
        record.boundaries.push_back({cut, cut, cut, KxShotBoundaryKind::Cut});
    }
    return record;
}

/// The thing swings from side to side, in fractions of the width.
double Place(std::int64_t frame)
{
    return 0.5 + 0.3 * std::sin(0.03 * static_cast<double>(frame));
}

cv::Mat Picture(std::int64_t frame)
{
    static const cv::Mat background = MadePictures::Texture(PictureSize, 21);
    cv::Mat picture = background.clone();
    MadePictures::PaintObject(picture, {cvRound(Place(frame) * PictureSize.width) - 15, 70, 30, 40});
    return picture;
}

KxSubjectSeed SeedAt(std::int64_t frame)
{
    return {static_cast<double>(frame) / Rate, {Place(frame) - 15.0 / 320.0, 70.0 / 180.0, 30.0 / 320.0, 40.0 / 180.0}};
}

KxDetection DetectionIn(const KxSubjectBox& box)
{
    return {static_cast<float>(box.x),
            static_cast<float>(box.y),
            static_cast<float>(box.width),
            static_cast<float>(box.height),
            0.7F,
            KxDetectionKind::Person};
}

KxSubjectChoice Follow(const std::vector<KxSubjectSeed>& seeds)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    choice.seeds = seeds;
    return choice;
}

struct Outcome {
    KxFollowTrack track;
    int ranges = 0;
    std::int64_t longestRange = 0;
};

Outcome FollowThrough(const KxSubjectRecord& record, const KxSubjectChoice& choice,
                      const KxSubjectOptions& options = {})
{
    KxSubjectFollower follower(record, choice, options);
    Outcome outcome;
    while (const auto range = follower.NextRange()) {
        ++outcome.ranges;
        outcome.longestRange = std::max(outcome.longestRange, range->end - range->first);
        EXPECT_LT(follower.Progress(), 1.0);
        for (std::int64_t frame = range->first; frame < range->end; ++frame) {
            if (follower.Wants(frame)) {
                const cv::Mat picture = Picture(frame);
                follower.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step[0]});
            }
        }
        follower.EndRange();
    }
    EXPECT_EQ(follower.Progress(), 1.0);
    outcome.track = follower.Track();
    return outcome;
}

/// Something that moves to the right and looks different so many frames before and after the one pointed at.
constexpr std::int64_t TurnFrame = 16;
double TurningPlace(std::int64_t frame)
{
    return 0.3 + 0.005 * static_cast<double>(frame);
}

cv::Mat PictureOfTurn(std::int64_t frame, std::int64_t seedFrame)
{
    cv::Mat picture = MadePictures::Texture(PictureSize, 21);
    const cv::Rect place(cvRound(TurningPlace(frame) * PictureSize.width) - 15, 70, 30, 40);
    if (std::abs(frame - seedFrame) < TurnFrame) {
        MadePictures::PaintObject(picture, place);
    } else {
        MadePictures::Texture(place.size(), 77).copyTo(picture(place));
    }
    return picture;
}

KxDetection DetectionAt(std::int64_t frame)
{
    return {static_cast<float>(TurningPlace(frame) - 15.0 / 320.0),
            70.0F / 180.0F,
            30.0F / 320.0F,
            40.0F / 180.0F,
            0.7F,
            KxDetectionKind::Person};
}

KxFollowTrack FollowThroughTurn(const KxSubjectRecord& record, std::int64_t seedFrame = 0)
{
    const KxDetection first = DetectionAt(seedFrame);
    KxSubjectFollower follower(record,
                               Follow({{static_cast<double>(seedFrame) / Rate,
                                        {static_cast<double>(first.x), static_cast<double>(first.y),
                                         static_cast<double>(first.width), static_cast<double>(first.height)}}}),
                               {});
    EXPECT_TRUE(follower.NextRange());
    for (std::int64_t frame = 0; frame < 60; ++frame) {
        if (follower.Wants(frame)) {
            const cv::Mat picture = PictureOfTurn(frame, seedFrame);
            follower.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step[0]});
        }
    }
    follower.EndRange();
    return follower.Track();
}

void ExpectOnTheThing(const KxFollowTrack& track)
{
    std::int32_t before = -1;
    for (const KxFollowTrack::Point& point : track.points) {
        EXPECT_GT(point.frame, before);
        EXPECT_NEAR(point.box.x + point.box.width / 2.0, Place(point.frame), 0.03) << point.frame;
        before = point.frame;
    }
}

} // namespace

TEST(KxSubjectFollower, ASeedIsFollowedToBothEndsOfItsShot)
{
    const Outcome outcome = FollowThrough(Record(300, {60, 240}), Follow({SeedAt(150)}));
    ExpectOnTheThing(outcome.track);
    ASSERT_GT(outcome.track.points.size(), 80U);
    EXPECT_EQ(outcome.track.points.front().frame, 60);
    EXPECT_EQ(outcome.track.points.back().frame, 238);
    EXPECT_EQ(outcome.ranges, 1) << "a short shot is decoded once";
}

TEST(KxSubjectFollower, SeedsOfSeveralShotsAreFollowedInTheirOwn)
{
    const Outcome outcome = FollowThrough(Record(300, {60, 240}), Follow({SeedAt(290), SeedAt(10)}));
    ExpectOnTheThing(outcome.track);
    for (const KxFollowTrack::Point& point : outcome.track.points) {
        EXPECT_TRUE(point.frame < 60 || point.frame >= 240) << point.frame;
    }
    EXPECT_EQ(outcome.ranges, 2);
}

TEST(KxSubjectFollower, TheRangeOfTheChoiceBoundsTheWork)
{
    KxSubjectChoice choice = Follow({SeedAt(150)});
    choice.fromSeconds = 4.0;
    choice.toSeconds = 6.0;
    const Outcome outcome = FollowThrough(Record(300), choice);
    EXPECT_GE(outcome.track.points.front().frame, 120);
    EXPECT_LT(outcome.track.points.back().frame, 180);
    ExpectOnTheThing(outcome.track);
}

TEST(KxSubjectFollower, ALongShotIsFollowedInBlocksWithTheSameResult)
{
    KxSubjectOptions options;
    options.follow.blockSeconds = 1.0;
    const KxSubjectChoice choice = Follow({SeedAt(100), SeedAt(200)});
    const Outcome outcome = FollowThrough(Record(300), choice, options);
    ExpectOnTheThing(outcome.track);
    EXPECT_GT(outcome.ranges, 6);
    const Outcome whole = FollowThrough(Record(300), choice);
    ASSERT_EQ(outcome.track.points.size(), whole.track.points.size());
    for (std::size_t i = 0; i < whole.track.points.size(); ++i) {
        EXPECT_EQ(outcome.track.points[i].frame, whole.track.points[i].frame);
        EXPECT_NEAR(outcome.track.points[i].box.x, whole.track.points[i].box.x, 1e-12);
    }
}

TEST(KxSubjectFollower, ThePersonsOwnBoxIsKeptAtItsFrame)
{
    KxSubjectSeed wrong = SeedAt(150);
    wrong.box.x -= 0.02;
    const Outcome outcome = FollowThrough(Record(300), Follow({SeedAt(20), wrong}));
    const auto at = std::find_if(outcome.track.points.begin(), outcome.track.points.end(),
                                 [](const KxFollowTrack::Point& point) { return point.frame == 150; });
    ASSERT_NE(at, outcome.track.points.end());
    EXPECT_EQ(at->box.x, wrong.box.x);
    EXPECT_EQ(at->confidence, 1.0F);
}

TEST(KxSubjectFollower, ABoxThatWasDrawnAgainKeepsItsShapeWhereTheDetectorSeesTheThing)
{
    KxSubjectRecord record = Record(120);
    for (const std::int32_t frame : {0, 30, 60, 90}) {
        record.looks.push_back({frame, {DetectionIn(SeedAt(frame).box)}});
    }
    KxSubjectSeed wide = SeedAt(30);
    wide.box.x -= 0.5 * wide.box.width;
    wide.box.width *= 2.0;
    const KxSubjectSeed second = SeedAt(70);
    const KxFollowTrack track = FollowThrough(record, Follow({wide, second})).track;
    ASSERT_EQ(track.points.back().frame, 118);
    EXPECT_NEAR(track.points.back().box.width, second.box.width, 0.2 * second.box.width);
}

TEST(KxSubjectFollower, APointBecomesABoxAroundTheThing)
{
    const Outcome outcome =
        FollowThrough(Record(60), Follow({{0.0, {Place(0), 0.5, 0.0, 0.0}, KxSubjectSeed::Extent::Guessed}}));
    ASSERT_FALSE(outcome.track.points.empty());
    const KxSubjectBox& box = outcome.track.points.front().box;
    EXPECT_GT(box.width, 0.05);
    EXPECT_LT(box.width, 0.3);
    EXPECT_LT(box.x, Place(0));
    EXPECT_GT(box.x + box.width, Place(0));
}

TEST(KxSubjectFollower, NothingIsDoneForSeedsOutsideTheVideoOrTheRange)
{
    KxSubjectChoice choice = Follow({SeedAt(900), SeedAt(10)});
    choice.fromSeconds = 2.0;
    const Outcome outcome = FollowThrough(Record(300), choice);
    EXPECT_EQ(outcome.ranges, 0);
    EXPECT_TRUE(outcome.track.points.empty());
}

TEST(KxSubjectFollower, AChoiceThatPointsAtNothingNeedsNoPictures)
{
    KxSubjectChoice hold;
    hold.kind = KxChoiceKind::Hold;
    EXPECT_EQ(FollowThrough(Record(300, {60}), hold).ranges, 0);
}

TEST(KxSubjectFollower, WhatTurnsAndLooksDifferentIsFoundByTheDetector)
{
    KxSubjectRecord record = Record(60);
    for (const std::int32_t frame : {0, 30}) {
        record.looks.push_back({frame, {DetectionAt(frame)}});
    }
    const KxFollowTrack track = FollowThroughTurn(record);
    for (const KxFollowTrack::Point& point : track.points) {
        if (point.frame < TurnFrame || point.frame >= 30) {
            EXPECT_NEAR(point.box.x + point.box.width / 2.0, TurningPlace(point.frame), 0.04) << point.frame;
        }
    }
    EXPECT_GT(track.points.back().confidence, 0.5F);
}

TEST(KxSubjectFollower, WhatTheDetectorFindsElsewhereWasDoubtfulSinceTheLookBefore)
{
    for (const std::int32_t seed : {0, 58}) {
        KxSubjectRecord record = Record(60);
        record.looks = {{0, {DetectionAt(0)}}, {30, {DetectionAt(30)}}, {58, {DetectionAt(58)}}};
        const KxFollowTrack track = FollowThroughTurn(record, seed);
        ASSERT_GT(track.points.size(), 20U);
        for (const KxFollowTrack::Point& point : track.points) {
            const bool isBetween = point.frame > std::min(seed, 30) && point.frame < std::max(seed, 30);
            EXPECT_EQ(point.isDoubted, isBetween) << seed << ' ' << point.frame;
        }
    }
}

TEST(KxSubjectFollower, WhatMeetsItsLikeIsAmbiguousFromThenToTheEnd)
{
    KxSubjectRecord record = Record(120);
    for (const std::int32_t frame : {0, 30, 60, 90}) {
        record.looks.push_back({frame, {DetectionIn(SeedAt(frame).box)}});
    }
    for (const std::size_t meeting : {1U, 2U}) {
        KxSubjectRecord met = record;
        KxSubjectBox other = SeedAt(met.looks[meeting].frame).box;
        other.x += 0.4 * other.width;
        met.looks[meeting].found.push_back(DetectionIn(other));
        const bool isBackward = meeting == 1;
        const std::int64_t seed = isBackward ? 110 : 10;
        const std::int64_t at = met.looks[meeting].frame;
        const KxFollowTrack track = FollowThrough(met, Follow({SeedAt(seed)})).track;
        ASSERT_GT(track.points.size(), 50U);
        for (const KxFollowTrack::Point& point : track.points) {
            EXPECT_EQ(point.isAmbiguous, isBackward ? point.frame <= at : point.frame >= at) << point.frame;
            EXPECT_FALSE(point.isDoubted) << point.frame;
        }
    }
}

TEST(KxSubjectFollower, ATrackThatStaysBehindIsDoubtedFromThatSecondOn)
{
    const KxFollowTrack track = FollowThroughTurn(Record(60));
    ASSERT_GT(track.points.size(), 20U);
    for (const KxFollowTrack::Point& point : track.points) {
        EXPECT_EQ(point.isDoubted, point.frame > 0) << point.frame;
    }
}

TEST(KxSubjectFollower, BackwardInTimeATrackIsDoubtedLikewise)
{
    constexpr std::int64_t seed = 58;
    const KxFollowTrack track = FollowThroughTurn(Record(60), seed);
    ASSERT_GT(track.points.size(), 20U);
    for (const KxFollowTrack::Point& point : track.points) {
        EXPECT_EQ(point.isDoubted, point.frame < seed) << point.frame;
    }
}

TEST(KxSubjectFollower, WhatTurnsAndLooksDifferentIsFollowedByItsMovement)
{
    KxSubjectRecord record = Record(60);
    KxMover mover;
    for (std::int32_t frame = 0; frame < 60; frame += 3) {
        record.samples.push_back({frame, {}, {}});
        const KxDetection box = DetectionAt(frame);
        const auto packed = [](float value) { return static_cast<std::uint8_t>(std::lround(value * 255.0F)); };
        mover.boxes.push_back({packed(box.x), packed(box.y), packed(box.x + box.width), packed(box.y + box.height)});
    }
    record.movers.push_back(mover);
    for (const KxFollowTrack::Point& point : FollowThroughTurn(record).points) {
        EXPECT_NEAR(point.box.x + point.box.width / 2.0, TurningPlace(point.frame), 0.04) << point.frame;
    }
}

TEST(KxSubjectFollower, APointBecomesTheDetectionAroundItAlsoBetweenLooks)
{
    KxSubjectRecord record = Record(60);
    record.looks = {{0, {DetectionAt(0)}}, {20, {DetectionAt(20)}}};
    const KxSubjectChoice choice =
        Follow({{record.SecondsAt(10), {TurningPlace(10) + 0.01, 0.45, 0.0, 0.0}, KxSubjectSeed::Extent::Guessed}});
    const std::vector<KxFollowTrack::Point> points = FollowThrough(record, choice).track.points;
    const auto seed =
        std::find_if(points.begin(), points.end(), [](const KxFollowTrack::Point& point) { return point.frame == 10; });
    ASSERT_NE(seed, points.end());
    EXPECT_NEAR(seed->box.x, static_cast<double>(DetectionAt(0).x + DetectionAt(20).x) / 2.0, 1e-6);
    EXPECT_NEAR(seed->box.height, static_cast<double>(DetectionAt(0).height), 1e-6);
}

TEST(KxSubjectFollower, MissingAndWrongPicturesAreIgnored)
{
    const KxSubjectRecord record = Record(60);
    KxSubjectFollower follower(record, Follow({SeedAt(30)}), {});
    ASSERT_TRUE(follower.NextRange());
    const cv::Mat small(3, 3, CV_8UC3, cv::Scalar::all(0));
    follower.AddPicture(0, {});
    follower.AddPicture(2, {small.data, {3, 3}, 9});
    follower.EndRange();
    EXPECT_FALSE(follower.NextRange());
    ASSERT_EQ(follower.Track().points.size(), 1U) << "the seed alone";
    follower.EndRange();
}

TEST(KxSubjectFollower, FollowingBackwardCanBeEnded)
{
    constexpr std::int64_t frames = 60;
    constexpr std::int64_t seed = 40;
    const KxSubjectRecord record = Record(frames);
    KxSubjectFollower follower(record, Follow({SeedAt(seed)}), {});
    for (std::int64_t frame = 0; frame < frames; frame += 2) {
        const cv::Mat picture = Picture(frame);
        follower.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step[0]});
    }
    EXPECT_EQ(follower.Track().points.front().frame, seed);
    std::int64_t first = seed;
    follower.EndRange([&] {
        EXPECT_EQ(follower.Track().points.front().frame, first - 2);
        first -= 2;
        return first > seed - 10;
    });
    EXPECT_EQ(follower.Track().points.front().frame, seed - 10);
    EXPECT_EQ(follower.Track().points.back().frame, frames - 2);
}
