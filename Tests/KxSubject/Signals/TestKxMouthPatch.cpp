#include <KxSubject/Signals/KxMouthPatch.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Rect2d Face(60.0, 40.0, 88.0, 112.0);
constexpr double MostShiftPx = 3.0;

/// A picture in which the part at the mouth is moved down by some pixels, and all of it by a vector.
KxMouthPatch Patch(double mouthDownPx, cv::Point2d moved = {}, double noise = 0.0)
{
    cv::Mat picture = MadePictures::Grey(MadePictures::Texture({240, 180}, 5));
    const cv::Rect mouth(cvRound(Face.x) + 16, cvRound(Face.y) + 78, 56, 30);
    cv::Mat part;
    cv::warpAffine(picture(mouth), part, cv::Matx23d(1.0, 0.0, 0.0, 0.0, 1.0, mouthDownPx), mouth.size(),
                   cv::INTER_LINEAR, cv::BORDER_REFLECT);
    part.copyTo(picture(mouth));
    picture = MadePictures::View(picture, -moved, picture.size());
    if (noise > 0.0) {
        cv::Mat grain(picture.size(), CV_16SC1);
        cv::RNG(3).fill(grain, cv::RNG::NORMAL, 0.0, noise);
        cv::Mat sum;
        cv::add(picture, grain, sum, cv::noArray(), CV_8UC1);
        picture = sum;
    }
    return KxMouthPatch(picture, Face);
}

} // namespace

TEST(KxMouthPatch, AFaceThatIsStillDoesNotMove)
{
    const KxMouthPatch::Movement movement = Patch(0.0).Since(Patch(0.0), MostShiftPx);
    EXPECT_NEAR(movement.mouth, 0.0, 1e-3);
    EXPECT_NEAR(movement.head, 0.0, 1e-3);
    EXPECT_NEAR(movement.opening, 0.0, 1e-2);
}

TEST(KxMouthPatch, AMouthThatOpensMovesWithoutTheHead)
{
    const KxMouthPatch::Movement movement = Patch(2.0).Since(Patch(0.0), MostShiftPx);
    EXPECT_GT(movement.mouth, 0.1);
    EXPECT_GT(movement.mouth, 5.0 * movement.head);
    EXPECT_GT(movement.opening, 0.3);
    EXPECT_LT(Patch(0.0).Since(Patch(2.0), MostShiftPx).opening, -0.3) << "closes again";
}

TEST(KxMouthPatch, AHeadThatMovesIsNoMouthThatMoves)
{
    const KxMouthPatch::Movement still = Patch(0.0, {2.0, 1.5}).Since(Patch(0.0), MostShiftPx);
    const KxMouthPatch::Movement opens = Patch(2.0, {2.0, 1.5}).Since(Patch(0.0), MostShiftPx);
    EXPECT_LT(still.mouth, 0.4 * opens.mouth);
    EXPECT_LT(std::abs(still.opening), 0.4 * opens.opening);
}

TEST(KxMouthPatch, AMovementLargerThanTheLimitIsNotUndone)
{
    const KxMouthPatch::Movement movement = Patch(0.0, {4.0, 0.0}).Since(Patch(0.0), 0.5);
    EXPECT_GT(movement.head, 0.1);
}

TEST(KxMouthPatch, AnEmptyFaceHasNoMovement)
{
    const cv::Mat grey(180, 240, CV_8UC1, cv::Scalar(90));
    const KxMouthPatch::Movement movement = KxMouthPatch(grey, Face).Since(KxMouthPatch(grey, Face), MostShiftPx);
    EXPECT_EQ(movement.mouth, 0.0);
    EXPECT_EQ(movement.opening, 0.0);
}

TEST(KxMouthPatch, AFaceAtThePicturesEdgeIsMeasured)
{
    const cv::Mat grey = MadePictures::Grey(MadePictures::Texture({240, 180}, 5));
    const KxMouthPatch patch(grey, {-30.0, 120.0, 88.0, 112.0});
    EXPECT_NEAR(patch.Since(patch, MostShiftPx).mouth, 0.0, 1e-3);
}
