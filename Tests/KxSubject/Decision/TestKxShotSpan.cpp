#include <KxSubject/Decision/KxShotSpan.h>

#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace
{

constexpr std::int64_t LongestPause = 50;

KxSubjectRecord Record(std::int64_t frameCount, const std::vector<std::int32_t>& samples)
{
    KxSubjectRecord record;
    record.source.frameCount = frameCount;
    for (const std::int32_t frame : samples) {
        record.samples.push_back({frame, {}, {}});
    }
    return record;
}

/// The first frame of each shot and the first one after it.
std::vector<std::pair<std::int64_t, std::int64_t>> Frames(const std::vector<KxShotSpan>& shots)
{
    std::vector<std::pair<std::int64_t, std::int64_t>> frames;
    for (const KxShotSpan& shot : shots) {
        frames.emplace_back(shot.first, shot.end);
    }
    return frames;
}

} // namespace

TEST(KxShotSpan, AShotHasTheSamplesOfItsFrames)
{
    KxSubjectRecord record = Record(100, {0, 30, 59, 60, 90});
    record.boundaries = {{60, 60, 60, KxShotBoundaryKind::Cut}};
    const std::vector<KxShotSpan> shots = KxShotSpansOf(record, LongestPause);
    ASSERT_EQ(shots.size(), 2U);
    EXPECT_EQ(shots[0].firstSample, 0U);
    EXPECT_EQ(shots[0].endSample, 3U);
    EXPECT_EQ(shots[1].firstSample, 3U);
    EXPECT_EQ(shots[1].endSample, 5U);
}

TEST(KxShotSpan, TheFramesOfADissolveAreClearInNeitherShot)
{
    KxSubjectRecord record = Record(100, {0, 50});
    record.boundaries = {{50, 40, 58, KxShotBoundaryKind::Dissolve}};
    const std::vector<KxShotSpan> shots = KxShotSpansOf(record, LongestPause);
    ASSERT_EQ(Frames(shots), (std::vector<std::pair<std::int64_t, std::int64_t>>{{0, 50}, {50, 100}}));
    EXPECT_EQ(shots[0].clearFirst, 0);
    EXPECT_EQ(shots[0].clearEnd, 40);
    EXPECT_EQ(shots[1].clearFirst, 58);
    EXPECT_EQ(shots[1].clearEnd, 100);
}

TEST(KxShotSpan, AShotEndsWhereThePicturesGoOnAfterALongPause)
{
    const auto shots = KxShotSpansOf(Record(1000, {0, 50, 101, 151}), LongestPause);
    EXPECT_EQ(Frames(shots), (std::vector<std::pair<std::int64_t, std::int64_t>>{{0, 101}, {101, 1000}}));
}

TEST(KxShotSpan, APauseWithABoundaryInItEndsNoOtherShot)
{
    KxSubjectRecord record = Record(1000, {0, 200});
    record.boundaries = {{120, 120, 120, KxShotBoundaryKind::Cut}};
    EXPECT_EQ(Frames(KxShotSpansOf(record, LongestPause)),
              (std::vector<std::pair<std::int64_t, std::int64_t>>{{0, 120}, {120, 1000}}));
}

TEST(KxShotSpan, AVideoWithoutPicturesIsOneShot)
{
    EXPECT_EQ(Frames(KxShotSpansOf(Record(12, {}), LongestPause)),
              (std::vector<std::pair<std::int64_t, std::int64_t>>{{0, 12}}));
}
