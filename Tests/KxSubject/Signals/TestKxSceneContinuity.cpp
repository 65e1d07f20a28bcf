#include <KxSubject/Signals/KxSceneContinuity.h>

#include <KxSubject/Signals/KxCameraMovement.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>

#include <gtest/gtest.h>

namespace
{

const cv::Size PictureSize(320, 180);
const KxSubjectOptions Options;

/// What the first and the last of the pictures have in common, the camera estimated from picture to picture.
double InCommon(const std::vector<cv::Mat>& pictures)
{
    const KxCameraMovement camera(Options.camera);
    KxSceneContinuity scenes(Options.scenes, PictureSize);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const cv::Mat grey = MadePictures::Grey(pictures[i]);
        scenes.AddSample(static_cast<std::int64_t>(i), grey,
                         i > 0 ? camera.Between(MadePictures::Grey(pictures[i - 1]), grey) : std::nullopt);
    }
    return scenes.InCommon(0, static_cast<std::int64_t>(pictures.size()) - 1, {{0, 0}, PictureSize});
}

} // namespace

TEST(KxSceneContinuity, TwoScenesHaveNothingInCommon)
{
    const cv::Mat one = MadePictures::Texture(PictureSize, 5, 60.0);
    const cv::Mat other = MadePictures::Texture(PictureSize, 6, 60.0);
    std::vector<cv::Mat> pictures;
    for (int i = 0; i <= 10; ++i) {
        pictures.emplace_back();
        cv::addWeighted(one, 1.0 - i / 10.0, other, i / 10.0, 0.0, pictures.back());
    }
    EXPECT_LT(InCommon(pictures), Options.shots.blends.inCommon / 2.0);
}

TEST(KxSceneContinuity, APannedSceneIsTheSame)
{
    const cv::Mat scene = MadePictures::Texture({480, 240}, 5, 60.0);
    std::vector<cv::Mat> pictures;
    for (int i = 0; i <= 10; ++i) {
        pictures.push_back(MadePictures::View(scene, {8.0 * i, 10.0}, PictureSize));
    }
    EXPECT_GT(InCommon(pictures), 0.8);
}

TEST(KxSceneContinuity, ASubjectOverHalfThePictureThatMovesLeavesTheSceneTheSame)
{
    const cv::Mat background = MadePictures::Texture(PictureSize, 5, 60.0);
    const cv::Mat subject = MadePictures::Texture({180, 180}, 6, 60.0);
    std::vector<cv::Mat> pictures;
    for (int i = 0; i <= 10; ++i) {
        pictures.push_back(background.clone());
        subject.copyTo(pictures.back()(cv::Rect(10 + 6 * i, 0, 180, 180)));
    }
    EXPECT_GT(InCommon(pictures), Options.shots.blends.inCommon);
}
