#include <KxSubject/Signals/KxMotionMap.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Size PictureSize(320, 180);

cv::Mat Picture(cv::Point2d camera, const cv::Rect& object)
{
    static const cv::Mat scene = MadePictures::Texture({480, 260}, 11);
    cv::Mat picture = MadePictures::View(scene, camera, PictureSize);
    if (!object.empty()) {
        MadePictures::PaintObject(picture, object);
    }
    return MadePictures::Grey(picture);
}

cv::Matx33d Shift(double across, double down)
{
    return {1.0, 0.0, across, 0.0, 1.0, down, 0.0, 0.0, 1.0};
}

cv::Mat MapOf(const cv::Mat& now, const std::vector<KxNeighbourPicture>& neighbours)
{
    return KxMotionMap(KxSubjectOptions().motion).Of(now, neighbours);
}

/// A place in the picture, in its map.
cv::Rect InMap(const cv::Rect& place)
{
    return {place.tl() / 2, place.br() / 2};
}

double MassIn(const cv::Mat& map, const cv::Rect& place)
{
    return cv::sum(map(InMap(place)))[0];
}

} // namespace

TEST(KxMotionMap, NoNeighbourAndEqualNeighboursShowNothing)
{
    const cv::Mat picture = Picture({40.0, 20.0}, {});
    EXPECT_EQ(cv::sum(MapOf(picture, {}))[0], 0.0);
    EXPECT_EQ(cv::sum(MapOf(picture, {{picture, cv::Matx33d::eye()}}))[0], 0.0);
}

TEST(KxMotionMap, APanAloneShowsNearlyNothing)
{
    const cv::Mat map = MapOf(Picture({45.3, 21.6}, {}), {{Picture({40.0, 20.0}, {}), Shift(-5.3, -1.6)}});
    EXPECT_LT(cv::mean(map)[0], 0.002);
}

TEST(KxMotionMap, AMovingSquareUnderAPanningCameraIsFound)
{
    const cv::Mat before = Picture({40.0, 20.0}, {200, 80, 30, 30});
    const cv::Mat now = Picture({46.4, 20.7}, {204, 82, 30, 30});
    const cv::Mat map = MapOf(now, {{before, Shift(-6.4, -0.7)}});
    EXPECT_GT(MassIn(map, {185, 65, 64, 64}), 0.95 * cv::sum(map)[0]);
    EXPECT_GT(cv::mean(map(InMap({200, 80, 34, 32})))[0], 0.5);
}

TEST(KxMotionMap, BackgroundThatTheMoverUncoversDoesNotCount)
{
    const KxNeighbourPicture before{Picture({40.0, 20.0}, {100, 80, 30, 30}), cv::Matx33d::eye()};
    const cv::Mat now = Picture({40.0, 20.0}, {140, 80, 30, 30});
    const KxNeighbourPicture after{Picture({40.0, 20.0}, {180, 80, 30, 30}), cv::Matx33d::eye()};
    const cv::Rect left(92, 72, 40, 46);
    const cv::Rect here(136, 76, 38, 38);
    EXPECT_GT(MassIn(MapOf(now, {before}), left), 0.3 * MassIn(MapOf(now, {before}), here));
    const cv::Mat map = MapOf(now, {before, after});
    EXPECT_LT(MassIn(map, left), 0.05 * MassIn(map, here));
    EXPECT_GT(MassIn(map, here), 0.75 * cv::sum(map)[0]);
}

TEST(KxMotionMap, PixelsThatThePanBringsInDoNotCount)
{
    const cv::Mat map = MapOf(Picture({52.0, 20.0}, {}), {{Picture({40.0, 20.0}, {}), Shift(-12.0, 0.0)}});
    EXPECT_LT(cv::mean(map.colRange(145, 160))[0], 0.002);
}

TEST(KxMotionMap, TheMapHasHalfTheSizeOfThePictureRoundedUp)
{
    const cv::Mat picture(179, 301, CV_8UC1, cv::Scalar(90));
    EXPECT_EQ(MapOf(picture, {}).size(), cv::Size(151, 90));
    EXPECT_EQ(MapOf(picture, {{picture, cv::Matx33d::eye()}}).size(), cv::Size(151, 90));
}

TEST(KxMotionMap, SmallPicturesAreAccepted)
{
    const cv::Mat small(12, 40, CV_8UC1, cv::Scalar(90));
    EXPECT_EQ(cv::sum(MapOf(small, {{small, cv::Matx33d::eye()}}))[0], 0.0);
}
