#include <KxSubject/Signals/KxSaliencyMap.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

TEST(KxSaliencyMap, AFlatPictureShowsNothing)
{
    const cv::Mat map = KxSaliencyMap(KxSubjectOptions().saliency).Of(cv::Mat(180, 320, CV_8UC1, cv::Scalar(120)));
    EXPECT_EQ(map.size(), cv::Size(64, 64));
    EXPECT_EQ(cv::sum(map)[0], 0.0);
}

TEST(KxSaliencyMap, AnObjectOnAPlainBackgroundIsSalient)
{
    cv::Mat picture(180, 320, CV_8UC3, cv::Scalar::all(120));
    MadePictures::PaintObject(picture, {220, 90, 36, 36});
    const cv::Mat grey = MadePictures::Grey(picture);
    const cv::Mat map = KxSaliencyMap(KxSubjectOptions().saliency).Of(grey);
    double largest = 0.0;
    cv::Point place;
    cv::minMaxLoc(map, nullptr, &largest, nullptr, &place);
    EXPECT_FLOAT_EQ(static_cast<float>(largest), 1.0F);
    EXPECT_TRUE(cv::Rect(210, 80, 56, 56).contains(cv::Point(place.x * 5, place.y * 180 / 64))) << place;
}
