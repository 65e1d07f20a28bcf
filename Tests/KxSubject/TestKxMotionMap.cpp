#include "KxMotionMap.h"

#include "MadePictures.h"

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Size PictureSize(320, 180);

cv::Mat Grey(const cv::Mat& picture)
{
    cv::Mat grey;
    cv::cvtColor(picture, grey, cv::COLOR_BGR2GRAY);
    return grey;
}

cv::Mat Picture(cv::Point2d camera, const cv::Rect& object)
{
    static const cv::Mat scene = MadePictures::Texture({480, 260}, 11);
    cv::Mat picture = MadePictures::View(scene, camera, PictureSize);
    if (!object.empty()) {
        MadePictures::PaintObject(picture, object);
    }
    return Grey(picture);
}

cv::Mat Map(const cv::Mat& before, const cv::Mat& now)
{
    return KxMotionMap(KxSubjectOptions().motion).Between(before, now);
}

double MassIn(const cv::Mat& map, const cv::Rect& place)
{
    return cv::sum(map(place))[0];
}

} // namespace

TEST(KxMotionMap, TwoEqualPicturesShowNothing)
{
    const cv::Mat picture = Picture({40.0, 20.0}, {});
    EXPECT_EQ(cv::sum(Map(picture, picture))[0], 0.0);
}

TEST(KxMotionMap, APanAloneShowsNearlyNothing)
{
    const cv::Mat map = Map(Picture({40.0, 20.0}, {}), Picture({45.3, 21.6}, {}));
    EXPECT_LT(cv::mean(map)[0], 0.002);
}

TEST(KxMotionMap, AMovingSquareUnderAPanningCameraIsFound)
{
    const cv::Mat before = Picture({40.0, 20.0}, {200, 80, 30, 30});
    const cv::Mat now = Picture({46.4, 20.7}, {204, 82, 30, 30});
    const cv::Mat map = Map(before, now);
    EXPECT_GT(MassIn(map, {185, 65, 64, 64}), 0.95 * cv::sum(map)[0]);
    EXPECT_GT(cv::mean(map(cv::Rect(200, 80, 34, 32)))[0], 0.5);
}

TEST(KxMotionMap, AStillSquareUnderAPanningCameraMovesAgainstTheBackground)
{
    const cv::Mat map = Map(Picture({40.0, 20.0}, {100, 80, 30, 30}), Picture({46.4, 20.0}, {100, 80, 30, 30}));
    EXPECT_GT(MassIn(map, {85, 65, 60, 60}), 0.95 * cv::sum(map)[0]);
}

TEST(KxMotionMap, WhatThePanBringsInDoesNotCount)
{
    const cv::Mat map = Map(Picture({40.0, 20.0}, {}), Picture({52.0, 20.0}, {}));
    EXPECT_LT(cv::mean(map.colRange(290, 320))[0], 0.002);
}

TEST(KxMotionMap, PicturesWithoutCornersAreTakenAsFromAStillCamera)
{
    cv::Mat before(PictureSize, CV_8UC1, cv::Scalar(90));
    cv::Mat now = before.clone();
    now(cv::Rect(100, 60, 40, 40)).setTo(200);
    const cv::Mat map = Map(before, now);
    EXPECT_GT(MassIn(map, {85, 45, 70, 70}), 0.95 * cv::sum(map)[0]);
}

TEST(KxMotionMap, SmallPicturesAreTaken)
{
    const cv::Mat small(12, 40, CV_8UC1, cv::Scalar(90));
    EXPECT_EQ(cv::sum(Map(small, small))[0], 0.0);
}
