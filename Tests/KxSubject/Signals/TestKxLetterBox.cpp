#include <KxSubject/Signals/KxLetterBox.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

namespace
{

constexpr int MostPx = 416 * 256;

} // namespace

TEST(KxLetterBox, TheInputIsTheOneInWhichThePictureIsLargest)
{
    EXPECT_EQ(KxLetterBox({1920, 1080}, MostPx).InputPx(), cv::Size(416, 256));
    EXPECT_EQ(KxLetterBox({320, 180}, MostPx).InputPx(), cv::Size(416, 256));
    EXPECT_EQ(KxLetterBox({1080, 1920}, MostPx).InputPx(), cv::Size(256, 416));
    EXPECT_EQ(KxLetterBox({500, 500}, MostPx).InputPx(), cv::Size(320, 320));
    EXPECT_EQ(KxLetterBox({640, 480}, MostPx).InputPx(), cv::Size(352, 288));
    EXPECT_EQ(KxLetterBox({1920, 1080}, 320 * 192).InputPx(), cv::Size(320, 192));
}

TEST(KxLetterBox, OfEquallyLargePicturesTheSmallestInputIsTaken)
{
    // 64 x 32 would hold the picture at the same size.
    EXPECT_EQ(KxLetterBox({32, 32}, 2 * 32 * 32).InputPx(), cv::Size(32, 32));
}

TEST(KxLetterBox, ExtremePicturesStayInsideTheInput)
{
    for (const cv::Size picture : {cv::Size(1, 1), cv::Size(10000, 1), cv::Size(1, 10000), cv::Size(4000, 20)}) {
        const KxLetterBox box(picture, MostPx);
        EXPECT_LE(box.InputPx().area(), MostPx) << picture;
        EXPECT_GE(box.ScaledPx().width, 1) << picture;
        EXPECT_GE(box.ScaledPx().height, 1) << picture;
        EXPECT_LE(box.ScaledPx().width, box.InputPx().width) << picture;
        EXPECT_LE(box.ScaledPx().height, box.InputPx().height) << picture;
        EXPECT_EQ(box.Fill(cv::Mat::zeros(picture, CV_8UC3)).size(), box.InputPx()) << picture;
    }
}

TEST(KxLetterBox, AnInputOfLessThanOneStepHasOneStep)
{
    EXPECT_EQ(KxLetterBox({100, 100}, 0).InputPx(), cv::Size(32, 32));
}

TEST(KxLetterBox, ThePictureKeepsItsShapeAndTheRestIsBlack)
{
    const KxLetterBox box({1920, 1080}, MostPx);
    EXPECT_EQ(box.ScaledPx(), cv::Size(416, 234));
    const cv::Mat input = box.Fill(cv::Mat(1080, 1920, CV_8UC3, cv::Scalar(10, 20, 30)));
    EXPECT_EQ(input.type(), CV_8UC3);
    EXPECT_EQ(input.at<cv::Vec3b>(0, 0), cv::Vec3b(10, 20, 30));
    EXPECT_EQ(input.at<cv::Vec3b>(233, 415), cv::Vec3b(10, 20, 30));
    EXPECT_EQ(cv::countNonZero(input.rowRange(234, 256).reshape(1)), 0);
}

TEST(KxLetterBox, BoxesOfTheInputBecomeFractionsOfThePicture)
{
    const KxLetterBox wide({1920, 1080}, MostPx);
    const cv::Rect2d centre = wide.ToPicture({104, 58.5, 208, 117});
    EXPECT_DOUBLE_EQ(centre.x, 0.25);
    EXPECT_DOUBLE_EQ(centre.y, 0.25);
    EXPECT_DOUBLE_EQ(centre.width, 0.5);
    EXPECT_DOUBLE_EQ(centre.height, 0.5);
    const KxLetterBox tall({1080, 1920}, MostPx);
    EXPECT_DOUBLE_EQ(tall.ToPicture({0, 0, 117, 416}).width, 0.5);
}

TEST(KxLetterBox, WhatLiesOutsideThePictureIsCutOff)
{
    const KxLetterBox box({1920, 1080}, MostPx);
    const cv::Rect2d over = box.ToPicture({-50, 200, 154, 56});
    EXPECT_DOUBLE_EQ(over.x, 0.0);
    EXPECT_DOUBLE_EQ(over.width, 0.25);
    EXPECT_DOUBLE_EQ(over.br().y, 1.0);
    EXPECT_TRUE(box.ToPicture({0, 240, 50, 10}).empty());
}
