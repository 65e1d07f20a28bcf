#pragma once

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectDecision.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <Tests/KxSubject/MadePictures.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <vector>

/// Made videos of an object in front of a texture, and what is decided on them.
namespace DecidedScenes
{

inline const cv::Size SceneSize(480, 240);

/// The pictures have no faces, and searching for them takes most of the time.
inline const KxSubjectModels NoModels;

inline KxPictureView ViewOf(const cv::Mat& picture)
{
    return {picture.data, {picture.cols, picture.rows}, picture.step[0]};
}

/// A video and what is asked of it.
struct Task {
    KxSubjectSource source;
    KxSubjectRequest request;
};

inline Task MakeTask(std::int64_t frameCount, KxIntSize aspect = {9, 16}, KxMotionSpeed speed = KxMotionSpeed::Auto)
{
    return {{1280, 720, 25.0, frameCount}, {aspect.width, aspect.height, speed, false}};
}

inline KxSubjectObserver Observer(const Task& task, const KxSubjectModels& models = NoModels,
                                  const KxSubjectOptions& options = {})
{
    return KxSubjectObserver(task.source, models, options);
}

inline KxSubjectDecision Decide(KxSubjectObserver& observer, const Task& task, const KxSubjectOptions& options = {})
{
    return KxDecide(observer.Finish(), task.request, options, KxCancelToken());
}

/// An object 30 px wide whose middle is at `centre` (fraction of the width), in front of a texture that the camera
/// pans.
inline cv::Mat Picture(double centre, double camera, std::uint64_t seed = 21)
{
    static std::uint64_t madeSeed = 0;
    static cv::Mat scene;
    if (madeSeed != seed) {
        madeSeed = seed;
        scene = MadePictures::Texture(SceneSize, seed, seed == 21 ? 110.0 : 60.0);
    }
    cv::Mat picture = MadePictures::View(scene, {camera, 10.0}, {320, 180});
    MadePictures::PaintObject(picture, {cvRound(centre * 320.0) - 15, 80, 30, 40});
    return picture;
}

using Scene = std::function<cv::Mat(std::int64_t frame)>;

inline std::vector<KxCropRect> Analyse(const Task& task, const Scene& scene, std::int64_t every = 1,
                                       std::int64_t last = std::numeric_limits<std::int64_t>::max(),
                                       const KxSubjectOptions& options = {}, const KxSubjectModels& models = NoModels)
{
    KxSubjectObserver observer(task.source, models, options);
    for (std::int64_t frame = 0; frame < std::min(task.source.frameCount, last); frame += every) {
        if (observer.Wants(frame)) {
            observer.AddPicture(frame, ViewOf(scene(frame)));
        }
    }
    return Decide(observer, task, options).crops;
}

inline cv::Mat Walk(std::int64_t frame)
{
    return Picture(0.2 + 0.004 * static_cast<double>(frame), 60.0);
}

inline void ExpectOneSizeInside(const std::vector<KxCropRect>& crops)
{
    for (const KxCropRect& crop : crops) {
        EXPECT_EQ(crop.width, crops.front().width);
        EXPECT_EQ(crop.height, crops.front().height);
        EXPECT_GE(crop.x, 0.0);
        EXPECT_GE(crop.y, 0.0);
        EXPECT_LE(crop.x + crop.width, 1.0 + 1e-12);
        EXPECT_LE(crop.y + crop.height, 1.0 + 1e-12);
    }
}

inline double Middle(const KxCropRect& crop)
{
    return crop.x + crop.width / 2.0;
}

} // namespace DecidedScenes
