#include <KxPlayer/KxPictureMaker.h>

#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/Support/MadeVideo.h>

#include <gtest/gtest.h>

namespace
{

constexpr QSize Area{160, 96};
constexpr int LongLast = 299;

std::unique_ptr<KxPictureMaker> OpenLong()
{
    auto maker = KxPictureMaker::Open(PlayerClip::Source(PlayerClip::OneKeyFrame()), {});
    return maker ? std::move(*maker) : nullptr;
}

std::optional<int> NumberAt(KxPictureMaker& maker, int frame)
{
    KxPlayerPicture picture;
    const KxReadStatus status = maker.Make(frame, Area, picture);
    return status == KxReadStatus::Delivered ? MadeVideo::ReadNumber(picture.image) : std::nullopt;
}

// How often it was asked until the way to the last frame was given up.
int GiveUpAfter(KxPictureMaker& maker, int asks)
{
    int asked = 0;
    KxPlayerPicture picture;
    maker.GiveUpWhen([&] { return ++asked > asks; });
    EXPECT_EQ(maker.Make(LongLast, Area, picture), KxReadStatus::Cancelled);
    maker.GiveUpWhen({});
    return asked;
}

} // namespace

TEST(KxPictureMaker, ALongWayIsGivenUpAtTheNextPicture)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    for (const int asks : {0, 1, 10, 40}) {
        EXPECT_EQ(NumberAt(*maker, 0), 0);
        EXPECT_EQ(GiveUpAfter(*maker, asks), asks + 1);
    }
    EXPECT_EQ(NumberAt(*maker, LongLast), LongLast);
}

TEST(KxPictureMaker, AWayThatWasGivenUpLeavesEveryFrameInItsPlace)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    // On a long way some pictures, two of three at the most, are left out; so decoding stands somewhere in here.
    for (int asks = 1; asks <= 31; asks += 6) {
        for (int frame = asks; frame <= 3 * asks + 3; ++frame) {
            ASSERT_EQ(NumberAt(*maker, 0), 0);
            GiveUpAfter(*maker, asks);
            ASSERT_EQ(NumberAt(*maker, frame), frame) << "given up after " << asks;
        }
    }
}
