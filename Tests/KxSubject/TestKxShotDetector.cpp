#include "KxShotDetector.h"

#include "MadePictures.h"

#include <opencv2/core.hpp>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double FrameRate = 25.0;
const cv::Size PictureSize(160, 90);

std::vector<KxPictureChange> Calm(std::int64_t count)
{
    std::vector<KxPictureChange> changes;
    for (std::int64_t i = 0; i < count; ++i) {
        KxPictureChange change;
        change.frame = i;
        change.grey = 1.0F + 0.1F * static_cast<float>(i % 3);
        change.colour = 0.02F;
        changes.push_back(change);
    }
    return changes;
}

void Jump(std::vector<KxPictureChange>& changes, std::size_t at, float grey, float colour)
{
    changes[at].grey = grey;
    changes[at].colour = colour;
}

std::vector<std::int64_t> Find(const std::vector<KxPictureChange>& changes)
{
    return KxShotDetector::FindCuts(changes, FrameRate, KxSubjectOptions().shots);
}

} // namespace

TEST(KxShotDetector, AJumpOfBothSignalsIsACut)
{
    auto changes = Calm(60);
    Jump(changes, 30, 40.0F, 0.6F);
    EXPECT_THAT(Find(changes), ElementsAre(30));
}

TEST(KxShotDetector, AJumpOfOneSignalAloneIsNone)
{
    auto changes = Calm(60);
    Jump(changes, 20, 40.0F, 0.05F);
    Jump(changes, 40, 3.0F, 0.6F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotDetector, AJumpUnderTheFloorIsNone)
{
    auto changes = Calm(60);
    Jump(changes, 30, 8.5F, 0.17F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotDetector, AJumpThatIsUsualAroundItIsNone)
{
    auto changes = Calm(60);
    for (KxPictureChange& change : changes) {
        change.grey = 12.0F;
        change.colour = 0.2F;
    }
    Jump(changes, 30, 22.0F, 0.38F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotDetector, OfTwoNearCutsTheStrongerStays)
{
    auto changes = Calm(60);
    Jump(changes, 30, 30.0F, 0.5F);
    Jump(changes, 33, 50.0F, 0.7F);
    EXPECT_THAT(Find(changes), ElementsAre(33));
}

TEST(KxShotDetector, ACutRightAfterTheFirstPictureIsNone)
{
    auto changes = Calm(60);
    Jump(changes, 2, 40.0F, 0.6F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotDetector, FrameNumbersAreThoseOfThePictures)
{
    auto changes = Calm(60);
    for (KxPictureChange& change : changes) {
        change.frame *= 4;
    }
    Jump(changes, 30, 40.0F, 0.6F);
    EXPECT_THAT(Find(changes), ElementsAre(120));
}

TEST(KxShotDetector, FindsTheCutsOfAPanningVideoOnTheirFrames)
{
    const cv::Mat first = MadePictures::Texture({320, 90}, 1, 70.0);
    const cv::Mat second = MadePictures::Texture({320, 90}, 2, 160.0);
    KxShotDetector detector(KxSubjectOptions().shots);
    for (int frame = 0; frame < 75; ++frame) {
        const cv::Mat& scene = frame < 31 || frame >= 52 ? first : second;
        detector.AddPicture(frame, MadePictures::View(scene, {frame * 0.8, 0.0}, PictureSize));
    }
    EXPECT_THAT(detector.Cuts(FrameRate), ElementsAre(31, 52));
}

TEST(KxShotDetector, AFlashIsNoCut)
{
    const cv::Mat scene = MadePictures::Texture({320, 90}, 3, 70.0);
    for (const int length : {1, 2, 3}) {
        KxShotDetector detector(KxSubjectOptions().shots);
        for (int frame = 0; frame < 60; ++frame) {
            cv::Mat picture = MadePictures::View(scene, {frame * 0.5, 0.0}, PictureSize);
            if (frame >= 30 && frame < 30 + length) {
                cv::add(picture, cv::Scalar::all(150), picture);
            }
            detector.AddPicture(frame, picture);
        }
        EXPECT_THAT(detector.Cuts(FrameRate), IsEmpty()) << "flash of " << length;
    }
}

TEST(KxShotDetector, ACutBetweenMissingPicturesIsAtTheFirstOfTheNewShot)
{
    const cv::Mat first = MadePictures::Texture(PictureSize, 4, 70.0);
    const cv::Mat second = MadePictures::Texture(PictureSize, 5, 160.0);
    KxShotDetector detector(KxSubjectOptions().shots);
    for (int frame = 0; frame < 90; frame += 3) {
        detector.AddPicture(frame, frame < 44 ? first : second);
    }
    EXPECT_THAT(detector.Cuts(FrameRate), ElementsAre(45));
}

TEST(KxShotDetector, NoPictureAndOnePictureHaveNoCut)
{
    KxShotDetector detector(KxSubjectOptions().shots);
    EXPECT_THAT(detector.Cuts(FrameRate), IsEmpty());
    detector.AddPicture(0, MadePictures::Texture(PictureSize, 6));
    EXPECT_THAT(detector.Cuts(FrameRate), IsEmpty());
}
