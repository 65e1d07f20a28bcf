#include <KxSubject/Follow/KxDriftCheck.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{

const cv::Size PictureSize(320, 180);
constexpr std::int64_t Second = 15; ///< in frames
constexpr int Right = 6;            ///< pixels a frame

cv::Rect ThingAt(int x)
{
    return {x, 70, 30, 40};
}

cv::Mat Background()
{
    return MadePictures::Texture(PictureSize, 21);
}

/// A checkered thing before a texture.
cv::Mat PictureWith(const std::vector<int>& places)
{
    cv::Mat picture = Background();
    for (const int x : places) {
        MadePictures::PaintObject(picture, ThingAt(x));
    }
    return picture;
}

KxDriftCheck Started(const cv::Mat& picture, int x)
{
    KxDriftCheck check(Second);
    check.SeeAt(0, picture, ThingAt(x));
    return check;
}

/// The thing moves to the right for two seconds. The track is on it up to `lastRight`, then it stays where it is.
KxDriftCheck Drifted(int lastRight)
{
    KxDriftCheck check = Started(PictureWith({40}), 40);
    for (int frame = 1; frame <= 2 * Second; ++frame) {
        check.Add(frame, PictureWith({40 + Right * frame}), ThingAt(40 + Right * std::min(frame, lastRight)));
    }
    return check;
}

} // namespace

TEST(KxDriftCheck, ATrackThatStaysOnItsThingIsNotDoubted)
{
    EXPECT_FALSE(Drifted(2 * Second).DoubtedSince());
}

TEST(KxDriftCheck, ATrackThatStaysOnTheBackgroundIsDoubtedFromThatSecondOn)
{
    EXPECT_EQ(Drifted(Second + 5).DoubtedSince(), Second);
}

TEST(KxDriftCheck, BackwardInTimeItIsTheSame)
{
    KxDriftCheck check(Second);
    check.SeeAt(100, PictureWith({40}), ThingAt(40));
    for (int frame = 1; frame <= Second; ++frame) {
        check.Add(100 - frame, PictureWith({40 + Right * frame}), ThingAt(40 + Right * std::min(frame, 5)));
    }
    EXPECT_EQ(check.DoubtedSince(), 100);
}

TEST(KxDriftCheck, OtherColoursAloneAreNoDoubt)
{
    KxDriftCheck check = Started(PictureWith({40}), 40);
    for (int frame = 1; frame <= Second; ++frame) {
        cv::Mat picture = PictureWith({40});
        if (frame > 8) {
            MadePictures::Texture(ThingAt(40).size(), 77).copyTo(picture(ThingAt(40)));
        }
        check.Add(frame, picture, ThingAt(40));
    }
    EXPECT_FALSE(check.DoubtedSince());
}

TEST(KxDriftCheck, AnotherWayBackAloneIsNoDoubt)
{
    const cv::Mat both = PictureWith({40, 200});
    KxDriftCheck check = Started(both, 40);
    for (int frame = 1; frame <= Second; ++frame) {
        check.Add(frame, both, ThingAt(frame > 8 ? 200 : 40));
    }
    EXPECT_FALSE(check.DoubtedSince());
}

TEST(KxDriftCheck, WhatIsSeenAgainIsNoLongerDoubted)
{
    KxDriftCheck check = Drifted(Second + 5);
    ASSERT_TRUE(check.DoubtedSince());
    check.SeeAt(31, PictureWith({200}), ThingAt(200));
    EXPECT_FALSE(check.DoubtedSince());
    for (int frame = 32; frame <= 31 + Second; ++frame) {
        check.Add(frame, PictureWith({200}), ThingAt(200));
    }
    EXPECT_FALSE(check.DoubtedSince());
}
