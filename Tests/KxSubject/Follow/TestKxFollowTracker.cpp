#include <KxSubject/Follow/KxFollowTracker.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace
{

const cv::Size PictureSize(320, 180);

/// A checkered thing of 30 x 40 pixels around a place, before a texture.
cv::Mat Picture(const cv::Point2d& middle)
{
    static const cv::Mat background = MadePictures::Texture(PictureSize, 21);
    cv::Mat picture = background.clone();
    MadePictures::PaintObject(picture, {cvRound(middle.x) - 15, cvRound(middle.y) - 20, 30, 40});
    return picture;
}

cv::Rect2d BoxAround(const cv::Point2d& middle)
{
    return {middle.x - 15.0, middle.y - 20.0, 30.0, 40.0};
}

cv::Point2d Middle(const cv::Rect2d& box)
{
    return (box.tl() + box.br()) / 2.0;
}

using Way = std::function<cv::Point2d(int picture)>;

KxFollowTracker Followed(const Way& way, int pictures)
{
    KxFollowTracker tracker(Picture(way(0)), BoxAround(way(0)));
    for (int i = 1; i < pictures; ++i) {
        tracker.AddPicture(Picture(way(i)));
    }
    return tracker;
}

} // namespace

TEST(KxFollowTracker, AMovingThingIsFollowed)
{
    const Way way = [](int i) { return cv::Point2d(60.0 + 4.0 * i, 90.0 + 15.0 * std::sin(0.2 * i)); };
    const KxFollowTracker tracker = Followed(way, 45);
    EXPECT_NEAR(Middle(tracker.Box()).x, way(44).x, 5.0);
    EXPECT_NEAR(Middle(tracker.Box()).y, way(44).y, 5.0);
    EXPECT_GT(tracker.Confidence(), 0.7);
}

TEST(KxFollowTracker, AThingThatComesCloserGrows)
{
    const cv::Mat scene = MadePictures::Texture(PictureSize, 21);
    const auto picture = [&scene](int i) {
        cv::Mat thing(80, 60, CV_8UC3, cv::Scalar(40, 40, 200));
        cv::rectangle(thing, {10, 10, 20, 30}, cv::Scalar(230, 230, 230), cv::FILLED);
        cv::rectangle(thing, {30, 45, 20, 25}, cv::Scalar(20, 220, 20), cv::FILLED);
        const double size = 0.5 * std::pow(1.015, i);
        cv::Mat scaled;
        cv::resize(thing, scaled, {}, size, size, cv::INTER_AREA);
        cv::Mat whole = scene.clone();
        scaled.copyTo(whole(cv::Rect(160 - scaled.cols / 2, 90 - scaled.rows / 2, scaled.cols, scaled.rows)));
        return whole;
    };
    KxFollowTracker tracker(picture(0), {145.0, 70.0, 30.0, 40.0});
    for (int i = 1; i < 40; ++i) {
        tracker.AddPicture(picture(i));
    }
    EXPECT_GT(tracker.Box().width, 30.0 * 1.4);
    EXPECT_LT(tracker.Box().width, 30.0 * 2.2);
}

TEST(KxFollowTracker, AThingThatIsGoneIsReportedLostAndItsPlaceIsKept)
{
    const Way way = [](int i) { return cv::Point2d(100.0 + 2.0 * i, 90.0); };
    KxFollowTracker tracker = Followed(way, 20);
    const cv::Mat without = MadePictures::Texture(PictureSize, 77);
    for (int i = 0; i < 10; ++i) {
        tracker.AddPicture(without);
    }
    EXPECT_LT(tracker.Confidence(), 0.3);
    EXPECT_NEAR(Middle(tracker.Box()).x, way(19).x, 40.0);
}

TEST(KxFollowTracker, AThingThatComesBackNearbyIsFoundAgain)
{
    const Way way = [](int) { return cv::Point2d(120.0, 90.0); };
    KxFollowTracker tracker = Followed(way, 20);
    const cv::Mat hidden = MadePictures::Texture(PictureSize, 21);
    for (int i = 0; i < 8; ++i) {
        tracker.AddPicture(hidden);
    }
    EXPECT_LT(tracker.Confidence(), 0.3);
    for (int i = 0; i < 8; ++i) {
        tracker.AddPicture(Picture({170.0, 100.0}));
    }
    EXPECT_NEAR(Middle(tracker.Box()).x, 170.0, 6.0);
    EXPECT_GT(tracker.Confidence(), 0.5);
}

TEST(KxFollowTracker, TheSamePicturesGiveTheSameBoxes)
{
    const Way way = [](int i) { return cv::Point2d(60.0 + 5.0 * i, 90.0); };
    const cv::Rect2d first = Followed(way, 30).Box();
    const cv::Rect2d second = Followed(way, 30).Box();
    EXPECT_EQ(first, second);
}

TEST(KxFollowTracker, BoxesOfEverySizeAndPlaceAreAccepted)
{
    const cv::Mat picture = Picture({160.0, 90.0});
    for (const cv::Rect2d& box : {cv::Rect2d(0, 0, 320, 180), cv::Rect2d(-50, -50, 60, 60),
                                  cv::Rect2d(310, 170, 100, 100), cv::Rect2d(100, 50, 0, 0), cv::Rect2d(0, 80, 320, 2),
                                  cv::Rect2d(150, 0, 1, 180), cv::Rect2d(-900, 900, 5000, 4000)}) {
        KxFollowTracker tracker(picture, box);
        for (int i = 0; i < 5; ++i) {
            tracker.AddPicture(picture);
        }
        EXPECT_TRUE(std::isfinite(tracker.Box().x)) << box;
        EXPECT_GT(tracker.Box().width, 0.0) << box;
    }
}

TEST(KxFollowTracker, PlainPicturesAreAccepted)
{
    const cv::Mat plain(PictureSize, CV_8UC3, cv::Scalar::all(90));
    KxFollowTracker tracker(plain, {100.0, 50.0, 40.0, 60.0});
    for (int i = 0; i < 6; ++i) {
        tracker.AddPicture(plain);
    }
    EXPECT_TRUE(std::isfinite(tracker.Box().x));
    EXPECT_TRUE(std::isfinite(tracker.Confidence()));
}
