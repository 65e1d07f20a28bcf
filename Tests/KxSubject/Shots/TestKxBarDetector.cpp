#include <KxSubject/Shots/KxBarDetector.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Size PictureSize(320, 180);

cv::Mat GreyTexture(std::uint64_t seed)
{
    return MadePictures::Grey(MadePictures::Texture(PictureSize, seed));
}

cv::Rect ContentOf(const std::vector<cv::Mat>& pictures)
{
    KxBarDetector detector(KxSubjectOptions().bars, PictureSize);
    for (const cv::Mat& picture : pictures) {
        detector.AddPicture(picture);
    }
    return detector.Content();
}

cv::Mat WithBars(cv::Mat picture, int topPx, int bottomPx, int leftPx, int rightPx)
{
    picture.rowRange(0, topPx).setTo(4);
    picture.rowRange(picture.rows - bottomPx, picture.rows).setTo(4);
    picture.colRange(0, leftPx).setTo(4);
    picture.colRange(picture.cols - rightPx, picture.cols).setTo(4);
    return picture;
}

const cv::Rect Whole(0, 0, 320, 180);

} // namespace

TEST(KxBarDetector, NoPictureHasNoBars)
{
    EXPECT_EQ(ContentOf({}), Whole);
}

TEST(KxBarDetector, AFullPictureHasNoBars)
{
    EXPECT_EQ(ContentOf({GreyTexture(1)}), Whole);
}

TEST(KxBarDetector, LetterboxIsRemovedWithOneExtraPixel)
{
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 22, 22, 0, 0)}), cv::Rect(0, 23, 320, 134));
}

TEST(KxBarDetector, PillarboxAndLetterboxAreFoundTogether)
{
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 22, 21, 40, 41)}), cv::Rect(41, 23, 237, 135));
}

TEST(KxBarDetector, ABarThatOnePictureFillsIsNotABar)
{
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 22, 22, 0, 0), GreyTexture(2)}), Whole);
}

TEST(KxBarDetector, ABlackPictureChangesNothing)
{
    const cv::Mat black(PictureSize, CV_8UC1, cv::Scalar(2));
    EXPECT_EQ(ContentOf({black}), Whole);
    EXPECT_EQ(ContentOf({black, WithBars(GreyTexture(1), 22, 22, 0, 0), black}), cv::Rect(0, 23, 320, 134));
}

TEST(KxBarDetector, ADarkSkyWithoutACounterpartIsNotABar)
{
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 40, 0, 0, 0)}), Whole);
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 40, 12, 0, 0)}), Whole);
}

TEST(KxBarDetector, ANarrowBarIsNotABar)
{
    EXPECT_EQ(ContentOf({WithBars(GreyTexture(1), 4, 4, 0, 0)}), Whole);
}
