#include <KxSubject/Choice/KxChoiceRanges.h>

#include <gtest/gtest.h>

#include <tuple>

namespace
{

using Frames = std::vector<std::tuple<std::int64_t, std::int64_t, std::size_t>>;

Frames FramesOf(const std::vector<KxChoiceRanges::Range>& ranges)
{
    Frames frames;
    for (const KxChoiceRanges::Range& range : ranges) {
        frames.emplace_back(range.first, range.end, range.choice);
    }
    return frames;
}

KxSubjectChoice Choice(KxChoiceKind kind, double from, double to, const std::vector<double>& seeds = {})
{
    KxSubjectChoice choice;
    choice.kind = kind;
    choice.fromSeconds = from;
    choice.toSeconds = to;
    for (const double seconds : seeds) {
        choice.seeds.push_back({seconds, {0.4, 0.4, 0.1, 0.1}});
    }
    return choice;
}

/// Of a shot from frame 100 to 200 at 10 frames a second.
KxChoiceRanges InShot(const KxSubjectChoices& choices)
{
    return {choices, 10.0, 100, 200};
}

} // namespace

TEST(KxChoiceRanges, AChoiceIsClippedToTheShot)
{
    EXPECT_EQ(FramesOf(InShot({Choice(KxChoiceKind::Hold, 5.0, 12.0)}).Placed()), (Frames{{100, 120, 0}}));
    EXPECT_EQ(FramesOf(InShot({Choice(KxChoiceKind::Hold, 19.0, 1e300)}).Placed()), (Frames{{190, 200, 0}}));
}

TEST(KxChoiceRanges, ASeedRulesItsOwnShotOnly)
{
    for (const KxChoiceKind kind : {KxChoiceKind::Follow, KxChoiceKind::Avoid}) {
        const auto ranges = [kind](const KxChoiceRanges& found) {
            return FramesOf(kind == KxChoiceKind::Follow ? found.Placed() : found.Avoided());
        };
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0, {9.9})})), Frames());
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0, {10.0})})), (Frames{{100, 200, 0}}));
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0, {19.9})})), (Frames{{100, 200, 0}}));
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0, {20.0})})), Frames());
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0, {3.0, 15.0, 30.0})})), (Frames{{100, 200, 0}}));
        EXPECT_EQ(ranges(InShot({Choice(kind, 16.0, 90.0, {15.0})})), Frames()) << "the seed lies before the range";
        EXPECT_EQ(ranges(InShot({Choice(kind, 0.0, 90.0)})), Frames());
    }
}

TEST(KxChoiceRanges, ALaterChoiceSplitsAnEarlierOne)
{
    EXPECT_EQ(
        FramesOf(InShot({Choice(KxChoiceKind::Hold, 10.0, 20.0), Choice(KxChoiceKind::Fit, 13.0, 15.0)}).Placed()),
        (Frames{{100, 130, 0}, {130, 150, 1}, {150, 200, 0}}));
}

TEST(KxChoiceRanges, AvoidLeavesTheOthersInForceAndAutomaticTakesItBack)
{
    const KxSubjectChoices choices{
        Choice(KxChoiceKind::Hold, 10.0, 20.0), Choice(KxChoiceKind::Avoid, 0.0, 20.0, {12.0}),
        Choice(KxChoiceKind::Avoid, 0.0, 20.0, {13.0}), Choice(KxChoiceKind::Automatic, 18.0, 20.0)};
    EXPECT_EQ(FramesOf(InShot(choices).Placed()), (Frames{{100, 180, 0}}));
    EXPECT_EQ(FramesOf(InShot(choices).Avoided()), (Frames{{100, 180, 1}, {100, 180, 2}}));
}
