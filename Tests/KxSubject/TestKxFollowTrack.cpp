#include <KxSubject/KxFollowTrack.h>

#include <KxSubject/KxSubjectOptions.h>

#include <gtest/gtest.h>

#include <tuple>

namespace
{

constexpr double Rate = 30.0;

using Frames = std::vector<std::tuple<std::int32_t, std::int32_t>>;

/// A point every second frame, from `first` to `last`.
void Add(KxFollowTrack& track, std::int32_t first, std::int32_t last, float confidence, bool isDoubted = false)
{
    for (std::int32_t frame = first; frame <= last; frame += 2) {
        track.points.push_back({frame, {0.4, 0.4, 0.1, 0.1}, confidence, isDoubted});
    }
}

Frames FramesOf(const std::vector<KxFollowTrack::Loss>& losses)
{
    Frames frames;
    for (const KxFollowTrack::Loss& loss : losses) {
        frames.emplace_back(loss.first, loss.last);
    }
    return frames;
}

Frames LossesOf(const KxFollowTrack& track)
{
    return FramesOf(track.Losses(Rate, {}));
}

Frames DoubtsOf(const KxFollowTrack& track)
{
    return FramesOf(track.Doubts(Rate));
}

} // namespace

TEST(KxFollowTrack, ALossOfMoreThanASecondIsReported)
{
    KxFollowTrack track;
    Add(track, 0, 98, 0.9F);
    Add(track, 100, 140, 0.1F);
    Add(track, 142, 200, 0.9F);
    Add(track, 202, 260, 0.2F);
    EXPECT_EQ(LossesOf(track), (Frames{{100, 140}, {202, 260}}));
}

TEST(KxFollowTrack, AShortLossIsNotReported)
{
    KxFollowTrack track;
    Add(track, 0, 98, 0.9F);
    Add(track, 100, 128, 0.1F);
    Add(track, 130, 200, 0.9F);
    EXPECT_EQ(LossesOf(track), Frames());
    EXPECT_EQ(LossesOf({}), Frames());
}

TEST(KxFollowTrack, LossesOfTwoShotsAreTwo)
{
    KxFollowTrack track;
    Add(track, 0, 20, 0.9F);
    Add(track, 22, 80, 0.1F);
    Add(track, 500, 560, 0.1F);
    EXPECT_EQ(LossesOf(track), (Frames{{22, 80}, {500, 560}}));
}

TEST(KxFollowTrack, ADoubtOfMoreThanASecondIsReportedAsOne)
{
    KxFollowTrack track;
    Add(track, 0, 98, 0.9F);
    Add(track, 100, 120, 0.9F, true);
    Add(track, 122, 180, 0.9F);
    Add(track, 182, 200, 0.9F, true);
    Add(track, 202, 240, 0.1F, true);
    Add(track, 242, 260, 0.9F, true);
    EXPECT_EQ(DoubtsOf(track), (Frames{{182, 260}}));
    EXPECT_EQ(LossesOf(track), (Frames{{202, 240}}));
}
