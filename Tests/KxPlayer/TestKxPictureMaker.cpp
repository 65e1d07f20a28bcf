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

// Abandons the seek to the last frame. Returns how often the maker asked whether to abandon it.
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

TEST(KxPictureMaker, ALongSeekIsAbandonedAtTheNextPicture)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    for (const int asks : {0, 1, 10, 40}) {
        EXPECT_EQ(NumberAt(*maker, 0), 0);
        EXPECT_EQ(GiveUpAfter(*maker, asks), asks + 1);
    }
    EXPECT_EQ(NumberAt(*maker, LongLast), LongLast);
}

TEST(KxPictureMaker, AnAbandonedSeekChangesNoFrameNumber)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    // During a long seek some pictures, at most two of three, are skipped; so decoding has reached one of these frames.
    for (int asks = 1; asks <= 31; asks += 6) {
        for (int frame = asks; frame <= 3 * asks + 3; ++frame) {
            ASSERT_EQ(NumberAt(*maker, 0), 0);
            GiveUpAfter(*maker, asks);
            ASSERT_EQ(NumberAt(*maker, frame), frame) << "given up after " << asks;
        }
    }
}
