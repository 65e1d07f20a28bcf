#include <KxSubject/Signals/KxCameraMovement.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Size PictureSize(320, 180);

cv::Mat Seen(cv::Point2d camera, std::uint64_t seed = 11)
{
    return MadePictures::Grey(MadePictures::View(MadePictures::Texture({480, 260}, seed), camera, PictureSize));
}

std::optional<cv::Matx33d> Between(const cv::Mat& before, const cv::Mat& now)
{
    return KxCameraMovement(KxSubjectOptions().camera).Between(before, now);
}

cv::Point2d ShiftAt(const cv::Matx33d& movement, cv::Point2d place)
{
    const cv::Vec3d moved = movement * cv::Vec3d(place.x, place.y, 1.0);
    return cv::Point2d(moved[0] / moved[2], moved[1] / moved[2]) - place;
}

} // namespace

TEST(KxCameraMovement, AStillCameraMovesNothing)
{
    const auto movement = Between(Seen({40.0, 20.0}), Seen({40.0, 20.0}));
    ASSERT_TRUE(movement);
    EXPECT_LT(cv::norm(ShiftAt(*movement, {160.0, 90.0})), 0.01);
}

TEST(KxCameraMovement, APanIsMeasuredToAPartOfAPixel)
{
    const auto movement = Between(Seen({40.0, 20.0}), Seen({47.4, 17.8}));
    ASSERT_TRUE(movement);
    for (const cv::Point2d place : {cv::Point2d(40.0, 30.0), cv::Point2d(280.0, 150.0)}) {
        EXPECT_NEAR(ShiftAt(*movement, place).x, -7.4, 0.1);
        EXPECT_NEAR(ShiftAt(*movement, place).y, 2.2, 0.1);
    }
}

TEST(KxCameraMovement, ALargeTexturedSubjectInFrontOfAFaintBackgroundIsNotTheScene)
{
    const cv::Mat scene = MadePictures::Texture({480, 260}, 11) * 0.3;
    const auto picture = [&scene](int subjectLeft) {
        cv::Mat seen = MadePictures::View(scene, {40.0, 20.0}, PictureSize);
        MadePictures::PaintObject(seen, {subjectLeft, 20, 110, 150});
        return MadePictures::Grey(seen);
    };
    const auto movement = Between(picture(150), picture(155));
    ASSERT_TRUE(movement);
    EXPECT_LT(cv::norm(ShiftAt(*movement, {60.0, 90.0})), 0.5) << "the background is static";
}

TEST(KxCameraMovement, PicturesWithoutCornersAreTakenAsFromAStillCamera)
{
    const cv::Mat plain(PictureSize, CV_8UC1, cv::Scalar(90));
    EXPECT_EQ(Between(plain, plain), cv::Matx33d::eye());
    const cv::Mat small(12, 40, CV_8UC1, cv::Scalar(90));
    EXPECT_EQ(Between(small, small), cv::Matx33d::eye());
}

TEST(KxCameraMovement, AnotherSceneHasNoMovement)
{
    EXPECT_FALSE(Between(Seen({40.0, 20.0}, 11), Seen({40.0, 20.0}, 12)));
}
