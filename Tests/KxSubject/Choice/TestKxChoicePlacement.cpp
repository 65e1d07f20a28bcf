#include <KxSubject/Choice/KxChoicePlacement.h>
#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using Place = KxPlacedChoice::Place;

constexpr double Rate = 25.0;

/// Something else in every frame, but alike from one to the next, as in a moving shot.
std::uint64_t PrintAt(std::int64_t frame)
{
    constexpr std::int64_t framesOfShot = 50;
    std::uint64_t shot = static_cast<std::uint64_t>(frame / framesOfShot) + 1;
    shot ^= shot << 13U;
    shot *= 0x9E3779B97F4A7C15U;
    shot ^= shot >> 29U;
    shot *= 0xBF58476D1CE4E5B9U;
    return shot ^ ((std::uint64_t{1} << (frame % framesOfShot + 8)) - 1) << 3U;
}

/// A video that shows the frames from `first` of the whole; `noise` of 64 bits differ.
KxSubjectRecord Video(std::int64_t first, std::int64_t frames, unsigned noise = 0, std::int64_t step = 1)
{
    KxSubjectRecord record;
    record.source = {640, 360, Rate, frames};
    for (std::int64_t frame = 0; frame < frames; frame += step) {
        std::uint64_t bits = PrintAt(first + frame);
        for (unsigned bit = 0; bit < noise; ++bit) {
            bits ^= std::uint64_t{1} << ((static_cast<unsigned>(frame) * 7 + bit * 29) % 64);
        }
        record.prints.push_back({static_cast<std::int32_t>(frame), static_cast<std::uint32_t>(bits >> 32U),
                                 static_cast<std::uint32_t>(bits)});
    }
    return record;
}

KxSubjectChoice Follow(double from, double to, double seed)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    choice.seeds = {{seed, {0.1, 0.2, 0.3, 0.4}, KxSubjectSeed::Extent::Drawn}};
    return choice;
}

/// Two choices of the whole video of 500 frames.
KxSubjectChoices Described()
{
    return KxDescribeChoices(Video(0, 500), {Follow(6.0, 8.0, 6.5), Follow(14.0, 16.0, 15.0)});
}

} // namespace

TEST(KxChoicePlacement, AChoiceIsDescribedByPicturesOfItsRangeItsSeedsAndTheVideo)
{
    const KxSubjectChoices described = Described();
    const auto has = [&described](std::size_t choice, std::int64_t frame) {
        const auto& pictures = described[choice].pictures;
        const KxChoicePicture picture{static_cast<double>(frame) / Rate, PrintAt(frame)};
        return std::find(pictures.begin(), pictures.end(), picture) != pictures.end();
    };
    EXPECT_TRUE(has(0, 150)) << "the beginning of its range";
    EXPECT_TRUE(has(0, 199)) << "the end of its range";
    EXPECT_TRUE(has(1, 375)) << "a seed";
    EXPECT_TRUE(has(1, 0) && has(1, 499)) << "the rest of the video";
    EXPECT_LE(described[0].pictures.size(), 61U);
    EXPECT_EQ(KxDescribeChoices(Video(100, 300), described), described) << "pictures that are there stay";
    EXPECT_TRUE(KxDescribeChoices(Video(0, 0), {Follow(0, 1, 0)})[0].pictures.empty());
}

TEST(KxChoicePlacement, ChoicesOfTheSameVideoStay)
{
    for (const unsigned noise : {0U, 3U}) {
        for (const KxPlacedChoice& placed : KxPlaceChoices(Video(0, 500, noise), Described())) {
            EXPECT_EQ(placed.place, Place::Kept) << noise;
        }
    }
}

TEST(KxChoicePlacement, AfterATrimAtTheStartChoicesMoveByWholeFrames)
{
    for (const std::int64_t step : {1, 2}) {
        const auto placed = KxPlaceChoices(Video(63, 437, 3, step), Described());
        ASSERT_EQ(placed.size(), 2U);
        EXPECT_EQ(placed[0].place, Place::Moved);
        EXPECT_NEAR(placed[0].movedSeconds, -63 / Rate, 1.01 * static_cast<double>(step - 1) / Rate + 1e-9) << step;
        EXPECT_EQ(placed[0].movedSeconds, placed[1].movedSeconds);
        EXPECT_NEAR(placed[0].choice.fromSeconds, 6.0 + placed[0].movedSeconds, 1e-9);
        EXPECT_NEAR(placed[0].choice.toSeconds, 8.0 + placed[0].movedSeconds, 1e-9);
        EXPECT_NEAR(placed[0].choice.seeds[0].seconds, 6.5 + placed[0].movedSeconds, 1e-9);
        EXPECT_NEAR(placed[0].choice.pictures[0].seconds, placed[0].movedSeconds, 1e-9);
    }
}

TEST(KxChoicePlacement, WhereManyPicturesWereSkippedABoundaryOfAShotDecides)
{
    KxSubjectRecord video = Video(62, 438, 0, 3);
    video.boundaries = {{88, 88, 88, KxShotBoundaryKind::Cut}, {138, 138, 138, KxShotBoundaryKind::Cut}};
    const KxSubjectChoices described = KxDescribeChoices(Video(0, 500, 0, 4), {Follow(6.0, 8.0, 6.5)});
    EXPECT_NEAR(KxPlaceChoices(video, described)[0].movedSeconds, -62 / Rate, 1e-9);
}

TEST(KxChoicePlacement, ChoicesMoveBackWithTheirPictures)
{
    const auto trimmed = KxPlaceChoices(Video(63, 437), Described());
    const auto back = KxPlaceChoices(Video(0, 500), {trimmed[0].choice, trimmed[1].choice});
    EXPECT_EQ(back[0].place, Place::Moved);
    EXPECT_NEAR(back[0].choice.fromSeconds, 6.0, 1e-9);
    EXPECT_NEAR(back[1].choice.seeds[0].seconds, 15.0, 1e-9);
}

TEST(KxChoicePlacement, AChoiceThatWasCutAwayIsMissingAndUnchanged)
{
    const KxSubjectChoices described = Described();
    const KxSubjectRecord video = Video(250, 250, 2);
    const auto placed = KxPlaceChoices(video, described);
    EXPECT_EQ(placed[0].place, Place::Missing);
    EXPECT_EQ(placed[0].choice, described[0]);
    EXPECT_EQ(placed[1].place, Place::Moved);
    EXPECT_NEAR(placed[1].movedSeconds, -10.0, 1e-9);
    const KxSubjectChoices inside = KxChoicesInside(video, placed);
    ASSERT_EQ(inside.size(), 1U);
    EXPECT_NEAR(inside[0].fromSeconds, 4.0, 1e-9);
}

TEST(KxChoicePlacement, APartThatWasCutOutMovesWhatComesAfterIt)
{
    KxSubjectRecord video = Video(0, 250);
    for (std::int64_t frame = 250; frame < 400; ++frame) {
        const std::uint64_t bits = PrintAt(frame + 100);
        video.prints.push_back({static_cast<std::int32_t>(frame), static_cast<std::uint32_t>(bits >> 32U),
                                static_cast<std::uint32_t>(bits)});
    }
    video.source.frameCount = 400;
    const auto placed = KxPlaceChoices(video, Described());
    EXPECT_EQ(placed[0].place, Place::Kept);
    EXPECT_EQ(placed[1].place, Place::Moved);
    EXPECT_NEAR(placed[1].movedSeconds, -4.0, 1e-9);
}

TEST(KxChoicePlacement, InAnotherVideoChoicesAreMissing)
{
    KxSubjectRecord other = Video(10000, 500);
    const auto placed = KxPlaceChoices(other, Described());
    EXPECT_EQ(placed[0].place, Place::Missing);
    EXPECT_EQ(placed[1].place, Place::Missing);
    EXPECT_TRUE(KxChoicesInside(other, placed).empty());
}

TEST(KxChoicePlacement, WithoutPicturesTheClockDecides)
{
    const KxSubjectChoices choices{Follow(6.0, 8.0, 6.5)};
    const KxSubjectRecord trimmed = Video(63, 437);
    const auto placed = KxPlaceChoices(trimmed, choices);
    EXPECT_EQ(placed[0].place, Place::Kept);
    EXPECT_EQ(KxChoicesInside(trimmed, placed), choices);
}

TEST(KxChoicePlacement, APictureThatDoesNotMoveStays)
{
    KxSubjectRecord still = Video(0, 500);
    for (KxPicturePrint& print : still.prints) {
        print.upper = 0x12345678U;
        print.lower = static_cast<std::uint32_t>(print.frame % 7 == 0 ? 1 : 0); // noise
    }
    const KxSubjectChoices described = KxDescribeChoices(still, {Follow(6.0, 8.0, 6.5)});
    for (KxPicturePrint& print : still.prints) {
        print.lower = static_cast<std::uint32_t>(print.frame % 5 == 0 ? 1 : 0);
    }
    EXPECT_EQ(KxPlaceChoices(still, described)[0].place, Place::Kept);
}

TEST(KxChoicePlacement, WhatIsCutOffTheRangeAndItsSeedsIsLeftOut)
{
    KxSubjectChoice choice = Follow(6.0, 8.0, 6.5);
    choice.seeds.push_back({7.8, {0.1, 0.2, 0.3, 0.4}, KxSubjectSeed::Extent::Drawn});
    KxSubjectChoice hold = Follow(6.0, 8.0, 6.5);
    hold.kind = KxChoiceKind::Hold;
    hold.seeds.clear();
    const KxSubjectChoices described = KxDescribeChoices(Video(0, 500), {choice, Follow(6.0, 8.0, 6.5), hold});
    const KxSubjectRecord trimmed = Video(175, 300);
    const auto placed = KxPlaceChoices(trimmed, described);
    EXPECT_NEAR(placed[0].choice.fromSeconds, -1.0, 1e-9) << "nothing of it is lost";
    EXPECT_EQ(placed[0].choice.seeds.size(), 2U);
    const KxSubjectChoices inside = KxChoicesInside(trimmed, placed);
    ASSERT_EQ(inside.size(), 2U) << "the second points at what was cut away";
    EXPECT_EQ(inside[0].fromSeconds, 0.0);
    ASSERT_EQ(inside[0].seeds.size(), 1U);
    EXPECT_NEAR(inside[0].seeds[0].seconds, 0.8, 1e-9);
    EXPECT_EQ(inside[1].kind, KxChoiceKind::Hold);
    EXPECT_NEAR(inside[1].toSeconds, 1.0, 1e-9);
}

TEST(KxChoicePlacement, AChoiceForAfterTheEndStays)
{
    const KxSubjectRecord video = Video(0, 500);
    const KxSubjectChoices described = KxDescribeChoices(video, {Follow(30.0, 40.0, 31.0)});
    EXPECT_EQ(KxPlaceChoices(video, described)[0].place, Place::Kept);
    EXPECT_NEAR(KxPlaceChoices(Video(63, 437), described)[0].movedSeconds, -63 / Rate, 1e-9);
}

TEST(KxChoicePlacement, TimesBeyondEveryVideoAreNotLookedFor)
{
    KxSubjectChoices described = Described();
    for (KxSubjectChoice& choice : described) {
        for (KxChoicePicture& picture : choice.pictures) {
            picture.seconds = 3.6e7;
        }
    }
    EXPECT_EQ(KxPlaceChoices(Video(0, 500), described)[0].place, Place::Missing);
}
