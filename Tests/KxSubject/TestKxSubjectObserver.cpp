#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectSampling.h>

#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>

using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const cv::Size Size(320, 180);
constexpr double FrameRate = 25.0;
constexpr int Begin = 40;

/// Large soft areas with fine detail on them, three times as wide and high as a picture.
cv::Mat Scene(std::uint64_t seed)
{
    constexpr double level = 110.0;
    cv::Mat areas;
    cv::resize(MadePictures::Texture({48, 27}, seed, level), areas, Size * 3, 0.0, 0.0, cv::INTER_CUBIC);
    const cv::Mat detail = MadePictures::Texture(Size * 3, seed + 100, level);
    cv::Mat scene;
    cv::addWeighted(areas, 2.2, detail, 0.5, -1.7 * level, scene);
    return scene;
}

cv::Mat View(const cv::Mat& scene, double x, double y = 150.0)
{
    return MadePictures::View(scene, {x, y}, Size);
}

/// 0 up to the frame Begin, 1 after `frames` more.
double Share(int frame, int frames)
{
    return std::clamp(static_cast<double>(frame - Begin) / frames, 0.0, 1.0);
}

cv::Mat Brighter(const cv::Mat& picture, double gain, double offset = 0.0)
{
    cv::Mat bright;
    picture.convertTo(bright, CV_8UC3, gain, offset);
    return bright;
}

cv::Mat Mixed(const cv::Mat& first, const cv::Mat& second, double share)
{
    cv::Mat mixed;
    cv::addWeighted(first, 1.0 - share, second, share, 0.0, mixed);
    return mixed;
}

std::vector<KxShotBoundary> BoundariesOf(int frames, const std::function<cv::Mat(int frame)>& draw)
{
    KxSubjectObserver observer({Size.width, Size.height, FrameRate, frames}, KxSubjectModels(), KxSubjectOptions());
    for (int frame = 0; frame < frames; ++frame) {
        const cv::Mat picture = draw(frame);
        observer.AddPicture(frame, {picture.data, {picture.cols, picture.rows}, picture.step});
    }
    return observer.Finish().boundaries;
}

} // namespace

TEST(KxSubjectObserver, APanAcrossASceneIsNotABoundary)
{
    for (const std::uint64_t seed : {1, 2, 3}) {
        const cv::Mat scene = Scene(seed);
        for (const double widthPx : {120.0, 240.0}) {
            EXPECT_THAT(BoundariesOf(150, [&](int frame) { return View(scene, 20.0 + widthPx * Share(frame, 50)); }),
                        IsEmpty())
                << "scene " << seed << " over " << widthPx;
        }
    }
}

TEST(KxSubjectObserver, AZoomIsNotABoundary)
{
    for (const std::uint64_t seed : {1, 2, 3}) {
        const cv::Mat scene = Scene(seed);
        EXPECT_THAT(BoundariesOf(150,
                                 [&](int frame) {
                                     const double zoom = 0.5 + 0.9 * Share(frame, 30);
                                     cv::Mat view;
                                     cv::warpAffine(
                                         scene, view,
                                         cv::Matx23d(zoom, 0.0, 160.0 - zoom * 480.0, 0.0, zoom, 90.0 - zoom * 270.0),
                                         Size, cv::INTER_AREA);
                                     return view;
                                 }),
                    IsEmpty())
            << "scene " << seed;
    }
}

TEST(KxSubjectObserver, AnExposureRampIsNotABoundary)
{
    const cv::Mat scene = Scene(4);
    EXPECT_THAT(BoundariesOf(150,
                             [&](int frame) {
                                 return Brighter(View(scene, 20.0 + frame * 0.3), 0.3 + 1.7 * Share(frame, 20), -20.0);
                             }),
                IsEmpty());
}

TEST(KxSubjectObserver, ALampThatLightsAPartOfTheSceneIsNotABoundary)
{
    const cv::Mat scene = View(Scene(5), 20.0);
    // The exposure adapts to the lamp on the right, so the window on the left gets darker.
    const auto lit = [&scene](double x, double gain, double otherGain) {
        cv::Mat light(Size, CV_32FC3);
        for (int column = 0; column < Size.width; ++column) {
            const double near = std::exp(-(column - x) * (column - x) / 16000.0);
            light.col(column).setTo(cv::Scalar::all(otherGain + (gain - otherGain) * near));
        }
        cv::Mat picture;
        cv::multiply(scene, light, picture, 1.0, CV_8UC3);
        return picture;
    };
    const cv::Mat before = lit(60.0, 1.4, 0.2);
    const cv::Mat after = lit(260.0, 1.8, 0.3);
    EXPECT_THAT(BoundariesOf(150, [&](int frame) { return Mixed(before, after, Share(frame, 10)); }), IsEmpty());
}

TEST(KxSubjectObserver, ADarkStartIsNotABoundary)
{
    const cv::Mat scene = Scene(6);
    cv::RNG random(1);
    EXPECT_THAT(BoundariesOf(150,
                             [&](int frame) {
                                 cv::Mat noise(Size, CV_8UC3);
                                 random.fill(noise, cv::RNG::UNIFORM, 0, 6);
                                 cv::Mat picture = Brighter(View(scene, 20.0), 0.15 + 0.85 * Share(frame, 15));
                                 cv::add(picture, noise, picture);
                                 return picture;
                             }),
                IsEmpty());
}

TEST(KxSubjectObserver, ADissolveIsABoundaryAlsoWhileTheCameraPans)
{
    const cv::Mat one = Scene(9);
    const cv::Mat other = Scene(10);
    for (const double speedPx : {0.0, 0.5, 2.0}) {
        for (const int length : {6, 15, 30}) {
            const auto found = BoundariesOf(150, [&](int frame) {
                return Mixed(View(one, 20.0 + frame * speedPx), View(other, 20.0 + frame * speedPx),
                             Share(frame, length));
            });
            ASSERT_THAT(found, SizeIs(1)) << "of " << length << " at " << speedPx;
            EXPECT_NEAR(static_cast<double>(found[0].frame), Begin + length / 2.0, 3.0);
            EXPECT_EQ(found[0].kind, KxShotBoundaryKind::Dissolve);
        }
    }
}

namespace
{

KxSubjectSource Video(std::int64_t frameCount)
{
    return {1280, 720, 25.0, frameCount};
}

KxSubjectObserver ObserverOf(const KxSubjectSource& source, const KxSubjectModels& models = {})
{
    return KxSubjectObserver(source, models, {});
}

} // namespace

TEST(KxSubjectObserver, TheWorkingSizeKeepsTheAspectAndIs320AtItsLongerSide)
{
    KxSubjectSource source = Video(10);
    EXPECT_EQ(ObserverOf(source).WorkingSize(), (KxIntSize{320, 180}));
    std::swap(source.pictureWidthPx, source.pictureHeightPx);
    EXPECT_EQ(ObserverOf(source).WorkingSize(), (KxIntSize{180, 320}));
    source.pictureWidthPx = 64;
    source.pictureHeightPx = 48;
    EXPECT_EQ(ObserverOf(source).WorkingSize(), (KxIntSize{320, 240}));
}

TEST(KxSubjectObserver, FramesOutsideAreNotWantedAndHighRatesAreSubsampled)
{
    KxSubjectSource source = Video(100);
    const KxSubjectObserver usual = ObserverOf(source);
    EXPECT_TRUE(usual.Wants(0));
    EXPECT_TRUE(usual.Wants(99));
    EXPECT_FALSE(usual.Wants(-1));
    EXPECT_FALSE(usual.Wants(100));
    source.frameRate = 240.0;
    const KxSubjectObserver quick = ObserverOf(source);
    int wanted = 0;
    for (int frame = 0; frame < 100; ++frame) {
        wanted += quick.Wants(frame) ? 1 : 0;
    }
    EXPECT_EQ(wanted, 25);
}

TEST(KxSubjectObserver, AnObjectDetectorThatCannotBeRunIsReported)
{
    EXPECT_FALSE(ObserverOf(Video(5)).IsObjectDetectorRefused());
    EXPECT_TRUE(ObserverOf(Video(5), {{}, "no network"}).IsObjectDetectorRefused());
}

TEST(KxSubjectObserver, AFaceDetectorThatCannotBeRunIsReported)
{
    EXPECT_FALSE(ObserverOf(Video(5)).IsFaceDetectorRefused());
    EXPECT_TRUE(ObserverOf(Video(5), {{{}, {}, "no network"}, {}}).IsFaceDetectorRefused());
}

TEST(KxSubjectObserver, SmallPicturesShowTheBoundariesBetweenTheSamples)
{
    const cv::Mat before = View(Scene(6), 0.0);
    const cv::Mat after = View(Scene(7), 0.0);
    KxSubjectObserver observer({Size.width, Size.height, FrameRate, 60}, KxSubjectModels(), KxSubjectOptions());
    const KxSubjectSampling sampling({Size.width, Size.height, FrameRate, 60}, KxSubjectOptions().sampling);
    std::size_t samples = 0;
    for (int frame = 0; frame < 60; ++frame) {
        const cv::Mat picture = frame < 31 ? before : after;
        cv::Mat small;
        cv::resize(picture, small, {KxSubjectSampling::ShotSize.width, KxSubjectSampling::ShotSize.height}, 0.0, 0.0,
                   cv::INTER_AREA);
        const KxPictureView shot{small.data, {small.cols, small.rows}, small.step};
        const bool isSample =
            sampling.IsSample(frame, frame > 0 ? std::optional<std::int64_t>(frame - 1) : std::nullopt);
        samples += isSample ? 1 : 0;
        observer.AddPicture(frame, shot,
                            isSample ? KxPictureView{picture.data, {picture.cols, picture.rows}, picture.step}
                                     : KxPictureView());
    }
    const KxSubjectRecord record = observer.Finish();
    ASSERT_EQ(record.boundaries.size(), 1U);
    EXPECT_EQ(record.boundaries.front().frame, 31);
    EXPECT_EQ(record.samples.size(), samples);
    EXPECT_LT(samples, 30U);
}

TEST(KxSubjectObserver, PicturesOfTheWrongSizeAreIgnored)
{
    KxSubjectObserver observer({Size.width, Size.height, FrameRate, 60}, KxSubjectModels(), KxSubjectOptions());
    const cv::Mat picture = View(Scene(6), 0.0);
    const KxPictureView whole{picture.data, {picture.cols, picture.rows}, picture.step};
    observer.AddPicture(0, whole, whole);
    observer.AddPicture(1, KxPictureView(), whole);
    EXPECT_TRUE(observer.Finish().samples.empty());
}
