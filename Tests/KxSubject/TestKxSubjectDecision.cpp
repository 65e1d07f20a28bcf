#include <KxSubject/KxSubjectDecision.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectObserver.h>
#include <KxSubject/KxSubjectOptions.h>
#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>
#include <Tests/KxSubject/Shots/ShotPictures.h>

#include <opencv2/core/utility.hpp>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <thread>

namespace
{

const cv::Size SceneSize(480, 240);

/// The pictures have no faces, and searching for them takes most of the time.
const KxSubjectModels NoModels;

KxPictureView ViewOf(const cv::Mat& picture)
{
    return {picture.data, {picture.cols, picture.rows}, picture.step[0]};
}

/// A video and what is asked of it.
struct Task {
    KxSubjectSource source;
    KxSubjectRequest request;
};

Task MakeTask(std::int64_t frameCount, KxIntSize aspect = {9, 16}, KxMotionSpeed speed = KxMotionSpeed::Auto)
{
    return {{1280, 720, 25.0, frameCount}, {aspect.width, aspect.height, speed, false}};
}

KxSubjectObserver Observer(const Task& task, const KxSubjectModels& models = NoModels,
                           const KxSubjectOptions& options = {})
{
    return KxSubjectObserver(task.source, models, options);
}

KxSubjectDecision Decide(KxSubjectObserver& observer, const Task& task, const KxSubjectOptions& options = {})
{
    return KxDecide(observer.Finish(), task.request, options, KxCancelToken());
}

/// An object 30 px wide whose middle is at `centre` (fraction of the width), in front of a texture that the camera
/// pans.
cv::Mat Picture(double centre, double camera, std::uint64_t seed = 21)
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

std::vector<KxCropRect> Analyse(const Task& task, const Scene& scene, std::int64_t every = 1,
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

cv::Mat Walk(std::int64_t frame)
{
    return Picture(0.2 + 0.004 * static_cast<double>(frame), 60.0);
}

void ExpectOneSizeInside(const std::vector<KxCropRect>& crops)
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

double Middle(const KxCropRect& crop)
{
    return crop.x + crop.width / 2.0;
}

} // namespace

TEST(KxSubjectDecision, TheCropKeepsAMovingObjectDuringAPan)
{
    const auto crops =
        Analyse(MakeTask(125),
                [](std::int64_t frame) {
                    return Picture(0.2 + 0.004 * static_cast<double>(frame), 20.0 + 0.9 * static_cast<double>(frame));
                },
                1, 125, {}, {InstalledModels::Cascades(), {}});
    ASSERT_EQ(crops.size(), 125U);
    ExpectOneSizeInside(crops);
    for (std::size_t frame = 0; frame < crops.size(); ++frame) {
        const double centre = 0.2 + 0.004 * static_cast<double>(frame);
        EXPECT_LE(crops[frame].x, centre - 15.0 / 320.0) << frame;
        EXPECT_GE(crops[frame].x + crops[frame].width, centre + 15.0 / 320.0) << frame;
    }
}

TEST(KxSubjectDecision, MissingPicturesDoNotLoseTheObject)
{
    for (const std::int64_t every : {2, 4, 10}) {
        const auto crops = Analyse(MakeTask(125), Walk, every);
        ASSERT_EQ(crops.size(), 125U);
        for (const std::size_t frame : {20U, 60U, 100U}) {
            EXPECT_NEAR(Middle(crops[frame]), 0.2 + 0.004 * static_cast<double>(frame), 0.1)
                << "every " << every << ", frame " << frame;
        }
    }
}

TEST(KxSubjectDecision, TheCropJumpsAtTheCutAndNowhereElse)
{
    const auto crops = Analyse(MakeTask(100), [](std::int64_t frame) {
        const double sway = 0.03 * std::sin(static_cast<double>(frame) * 0.5);
        return frame < 47 ? Picture(0.22 + sway, 40.0, 21) : Picture(0.76 + sway, 40.0, 22);
    });
    ASSERT_EQ(crops.size(), 100U);
    for (std::size_t frame = 1; frame < crops.size(); ++frame) {
        const double step = std::abs(crops[frame].x - crops[frame - 1].x);
        if (frame == 47) {
            EXPECT_GT(step, 0.4);
        } else {
            EXPECT_LT(step, 0.02) << frame;
        }
    }
}

TEST(KxSubjectDecision, TheCropJumpsInTheMiddleOfADissolve)
{
    const auto shot = [](std::uint64_t seed, double centre, std::int64_t frame) {
        cv::Mat picture;
        cv::resize(ShotPictures::Shot(ShotPictures::Scene(seed), static_cast<int>(frame)), picture, {320, 180});
        const double sway = 0.03 * std::sin(static_cast<double>(frame) * 0.5);
        MadePictures::PaintObject(picture, {cvRound((centre + sway) * 320.0) - 15, 80, 30, 40});
        return picture;
    };
    const auto crops = Analyse(MakeTask(160), [&shot](std::int64_t frame) {
        const double part = std::clamp((static_cast<double>(frame) - 65.0) / 25.0, 0.0, 1.0);
        return ShotPictures::Mixed(shot(1, 0.22, frame), shot(2, 0.76, frame), part);
    });
    ASSERT_EQ(crops.size(), 160U);
    EXPECT_NEAR(Middle(crops[70]), Middle(crops[10]), 0.03);
    EXPECT_NEAR(Middle(crops[85]), Middle(crops[150]), 0.03);
    EXPECT_LT(Middle(crops[10]), 0.35);
    EXPECT_GT(Middle(crops[150]), 0.65);
}

TEST(KxSubjectDecision, FindingsNameTheShotsAndTheirDominantSignals)
{
    Task task = MakeTask(200);
    task.request.wantsFindings = true;
    KxSubjectObserver observer = Observer(task);
    for (std::int64_t frame = 0; frame < 200; ++frame) {
        observer.AddPicture(frame, ViewOf(frame < 150 ? Walk(frame) : Picture(0.76, 40.0, 22)));
    }
    const auto [crops, findings] = Decide(observer, task);
    ASSERT_EQ(findings.shots.size(), 2U);
    EXPECT_EQ(findings.shots[0].first, 0);
    EXPECT_EQ(findings.shots[0].end, 150);
    EXPECT_EQ(findings.shots[1].end, 200);
    EXPECT_TRUE(findings.shots[0].dominantSignal == KxSignal::Movers ||
                findings.shots[0].dominantSignal == KxSignal::Motion);
    EXPECT_EQ(findings.shots[1].dominantSignal, KxSignal::Saliency) << "nothing moves";
    ASSERT_FALSE(findings.samples.empty());
    for (const KxSubjectFindings::Sample& sample : findings.samples) {
        EXPECT_NEAR(sample.wanted, Middle(crops[static_cast<std::size_t>(sample.frame)]), 0.1) << sample.frame;
    }
}

TEST(KxSubjectDecision, AShotIsDoubtfulWhenTheCropCannotHoldWhatWasFound)
{
    const auto confidence = [](const std::vector<float>& lefts) {
        Task task = MakeTask(50);
        task.request.wantsFindings = true;
        KxSubjectRecord record;
        record.source = task.source;
        record.workingSizePx = {320, 180};
        for (std::int32_t frame = 0; frame < 50; frame += 5) {
            record.samples.push_back({frame, {}, {}});
            KxDetectionLook look{frame, {}};
            for (const float left : lefts) {
                look.found.push_back({left, 0.2F, 0.1F, 0.5F, 0.9F, KxDetectionKind::Person});
            }
            record.looks.push_back(look);
        }
        return KxDecide(record, task.request, {}, KxCancelToken()).findings.shots.at(0).confidence;
    };
    EXPECT_GT(confidence({0.4F}), 0.9F);
    EXPECT_LT(confidence({0.05F, 0.85F}), 0.6F);
    EXPECT_EQ(confidence({}), 0.0F);
}

TEST(KxSubjectDecision, FindingsContainTheEvidenceThatWasUsed)
{
    const auto peak = [](double concentration) {
        Task task = MakeTask(50);
        task.request.wantsFindings = true;
        KxSubjectOptions options;
        options.evidence.concentration = concentration;
        KxSubjectObserver observer(task.source, NoModels, options);
        for (std::int64_t frame = 0; frame < 50; ++frame) {
            observer.AddPicture(frame, ViewOf(Walk(frame)));
        }
        const KxSignalProfile evidence = Decide(observer, task, options).findings.samples.at(10).evidence.Unpacked();
        return *std::max_element(evidence.share.begin(), evidence.share.end());
    };
    EXPECT_GT(peak(2.0), 1.3F * peak(1.0));
}

TEST(KxSubjectDecision, FindingsAreKeptOnlyOnRequest)
{
    const Task task = MakeTask(30);
    KxSubjectObserver observer = Observer(task);
    observer.AddPicture(0, ViewOf(Walk(0)));
    EXPECT_TRUE(Decide(observer, task).findings.samples.empty());
}

TEST(KxSubjectDecision, BarsStayOutsideTheCrop)
{
    const auto crops = Analyse(MakeTask(50), [](std::int64_t frame) {
        cv::Mat picture = Walk(frame);
        picture.rowRange(0, 20).setTo(cv::Scalar::all(0));
        picture.rowRange(160, 180).setTo(cv::Scalar::all(0));
        return picture;
    });
    ExpectOneSizeInside(crops);
    EXPECT_GE(crops.front().y, 20.0 / 180.0);
    EXPECT_LE(crops.front().y + crops.front().height, 160.0 / 180.0);
    EXPECT_NEAR(crops.front().width * 1280.0 / (crops.front().height * 720.0), 9.0 / 16.0, 1e-9);
}

TEST(KxSubjectDecision, EveryPresetGivesCropsOfOneSizeInsideThePicture)
{
    for (const KxIntSize aspect : {KxIntSize{9, 16}, {1, 1}, {16, 9}, {4, 3}, {4, 5}, {21, 9}}) {
        const auto crops = Analyse(MakeTask(30, aspect), Walk, 3);
        ASSERT_EQ(crops.size(), 30U);
        ExpectOneSizeInside(crops);
        EXPECT_LT(std::abs(crops.front().width * 1280.0 - crops.front().height * 720.0 * aspect.width / aspect.height),
                  1.0);
    }
}

TEST(KxSubjectDecision, ANarrowerReactionFollowsCloser)
{
    const auto distance = [](KxMotionSpeed speed) {
        const auto crops = Analyse(
            MakeTask(200, {9, 16}, speed),
            [](std::int64_t frame) { return Picture(0.5 + 0.25 * std::sin(0.05 * static_cast<double>(frame)), 60.0); },
            2);
        double sum = 0.0;
        for (std::size_t frame = 0; frame < crops.size(); ++frame) {
            sum += std::abs(Middle(crops[frame]) - 0.5 - 0.25 * std::sin(0.05 * static_cast<double>(frame)));
        }
        return sum / static_cast<double>(crops.size());
    };
    EXPECT_LT(distance(KxMotionSpeed::Fast), distance(KxMotionSpeed::Slow));
}

TEST(KxSubjectDecision, OneObjectOutweighsMoreEvidenceThatIsSpreadOut)
{
    const cv::Mat background = MadePictures::Texture({320, 180}, 21);
    const auto middle = [&background](double concentration) {
        KxSubjectOptions options;
        options.evidence.concentration = concentration;
        options.evidence.saliencyWeight = 0.0;
        const Scene scene = [&background](std::int64_t frame) {
            const auto sway = [frame](double phase) {
                return cvRound(4.0 * std::sin(static_cast<double>(frame) * 0.7 + phase));
            };
            cv::Mat picture = background.clone();
            MadePictures::PaintObject(picture, {60 + sway(0.0), 30, 24, 120});
            for (const int left : {190, 216, 242, 268}) {
                MadePictures::PaintObject(picture, {left + sway(left), 80, 20, 20});
            }
            return picture;
        };
        return Middle(Analyse(MakeTask(50), scene, 1, 50, options)[25]);
    };
    EXPECT_GT(middle(1.0), 0.6);
    EXPECT_LT(middle(4.0), 0.4);
}

TEST(KxSubjectDecision, OneRecordServesEveryAspectAndSpeed)
{
    Task task = MakeTask(60);
    KxSubjectObserver observer = Observer(task);
    for (std::int64_t frame = 0; frame < 60; ++frame) {
        observer.AddPicture(frame, ViewOf(Walk(frame)));
    }
    const KxSubjectRecord record = observer.Finish();
    for (const KxIntSize aspect : {KxIntSize{9, 16}, {1, 1}}) {
        for (const KxMotionSpeed speed : {KxMotionSpeed::Auto, KxMotionSpeed::Fast}) {
            task.request = {aspect.width, aspect.height, speed, false};
            const auto decided = KxDecide(record, task.request, {}, KxCancelToken()).crops;
            const auto analysed = Analyse(task, Walk);
            ASSERT_EQ(decided.size(), analysed.size());
            for (std::size_t frame = 0; frame < decided.size(); ++frame) {
                EXPECT_EQ(decided[frame].x, analysed[frame].x) << frame;
                EXPECT_EQ(decided[frame].width, analysed[frame].width) << frame;
            }
        }
    }
}

TEST(KxSubjectDecision, ShotsWithoutTheFramesThatAreAskedForAreNotDecided)
{
    Task task = MakeTask(100);
    KxSubjectObserver observer = Observer(task);
    for (std::int64_t frame = 0; frame < 100; ++frame) {
        observer.AddPicture(frame, ViewOf(frame < 47 ? Picture(0.22, 40.0, 21) : Picture(0.76, 40.0, 22)));
    }
    const KxSubjectRecord record = observer.Finish();
    const auto whole = KxDecide(record, task.request, {}, KxCancelToken()).crops;
    task.request.frames = {60, 61};
    const auto some = KxDecide(record, task.request, {}, KxCancelToken()).crops;
    ASSERT_EQ(some.size(), 100U);
    for (std::size_t frame = 0; frame < 47; ++frame) {
        EXPECT_NEAR(Middle(some[frame]), 0.5, 1e-12) << frame;
        EXPECT_LT(Middle(whole[frame]), 0.4) << frame;
    }
    for (std::size_t frame = 47; frame < 100; ++frame) {
        EXPECT_EQ(some[frame].x, whole[frame].x) << frame;
    }
}

TEST(KxSubjectDecision, WithoutPicturesTheCropIsInTheMiddle)
{
    const auto crops = Analyse(MakeTask(12), Walk, 1, 0);
    ASSERT_EQ(crops.size(), 12U);
    ExpectOneSizeInside(crops);
    EXPECT_NEAR(Middle(crops[5]), 0.5, 1e-12);
}

TEST(KxSubjectDecision, PlainPicturesLeaveTheCropInTheMiddle)
{
    const auto crops =
        Analyse(MakeTask(40), [](std::int64_t) { return cv::Mat(180, 320, CV_8UC3, cv::Scalar::all(90)); });
    for (const KxCropRect& crop : crops) {
        EXPECT_NEAR(Middle(crop), 0.5, 0.01);
    }
}

TEST(KxSubjectDecision, OneFrameFewFramesAndNoFrameAreAnalysed)
{
    for (const std::int64_t count : {0, 1, 2, 3, 5}) {
        const auto crops = Analyse(MakeTask(count), Walk);
        EXPECT_EQ(crops.size(), static_cast<std::size_t>(count));
        ExpectOneSizeInside(crops);
    }
}

TEST(KxSubjectDecision, TheLastCropIsHeldWhenPicturesEndEarly)
{
    const auto crops = Analyse(MakeTask(200), Walk, 1, 100);
    ASSERT_EQ(crops.size(), 200U);
    ExpectOneSizeInside(crops);
    EXPECT_NEAR(Middle(crops[199]), Middle(crops[105]), 0.05);
    EXPECT_NEAR(Middle(crops[199]), 0.6, 0.1);
}

TEST(KxSubjectDecision, APauseOfWeeksInTheTimeStampsIsHeldAndStartsAnotherShot)
{
    constexpr std::int64_t pause = 20 * 24 * 3600;
    Task task = MakeTask(40 + pause);
    task.source.frameRate = 1.0;
    task.request.wantsFindings = true;
    KxSubjectObserver observer = Observer(task);
    const auto place = [](std::int64_t picture) { return 0.2 + 0.015 * static_cast<double>(picture); };
    for (std::int64_t picture = 0; picture < 40; ++picture) {
        const std::int64_t frame = picture < 20 ? picture : picture + pause;
        observer.AddPicture(frame, ViewOf(Picture(place(picture), 60.0)));
    }
    const auto [crops, findings] = Decide(observer, task);
    ASSERT_EQ(crops.size(), static_cast<std::size_t>(40 + pause));
    ASSERT_EQ(findings.shots.size(), 2U);
    EXPECT_EQ(findings.shots[1].first, 20 + pause);
    EXPECT_EQ(crops[1000].x, crops[static_cast<std::size_t>(pause)].x);
    EXPECT_NEAR(Middle(crops[1000]), place(19), 0.15);
    EXPECT_NEAR(Middle(crops.back()), place(39), 0.15);
}

TEST(KxSubjectDecision, AnalysisEndsEarlyOnceCancelled)
{
    KxSubjectOptions options;
    options.path.iterations = std::numeric_limits<int>::max();
    const Task task = MakeTask(60);
    KxSubjectObserver observer = Observer(task);
    for (std::int64_t frame = 0; frame < 60; ++frame) {
        observer.AddPicture(frame, ViewOf(Picture(0.1 + 0.013 * static_cast<double>(frame), 60.0)));
    }
    const KxSubjectRecord record = observer.Finish();
    KxCancelToken cancel;
    std::thread canceller([&cancel] { cancel.Cancel(); });
    EXPECT_TRUE(KxDecide(record, task.request, options, cancel).crops.empty());
    canceller.join();
}

TEST(KxSubjectDecision, AVeryLowRateIsAccepted)
{
    Task task = MakeTask(12);
    task.source.frameRate = 0.5;
    const auto crops = Analyse(task, Walk);
    ASSERT_EQ(crops.size(), 12U);
    ExpectOneSizeInside(crops);
}

TEST(KxSubjectDecision, InvalidRequestsGiveCrops)
{
    Task task;
    task.source.frameRate = std::numeric_limits<double>::quiet_NaN();
    task.source.frameCount = 4;
    task.request.aspectHeight = 0;
    KxSubjectObserver observer = Observer(task);
    const cv::Mat small(3, 3, CV_8UC3, cv::Scalar::all(0));
    observer.AddPicture(0, KxPictureView());
    observer.AddPicture(1, ViewOf(small));
    observer.AddPicture(2, {small.data, observer.WorkingSize(), 9});
    EXPECT_EQ(Decide(observer, task).crops.size(), 4U);
    task.source.frameCount = -7;
    KxSubjectObserver none = Observer(task);
    EXPECT_TRUE(Decide(none, task).crops.empty());
}

TEST(KxSubjectDecision, ExtremeShapesAreAccepted)
{
    for (const cv::Size& size : {cv::Size(4000, 16), cv::Size(16, 4000), cv::Size(1, 1)}) {
        Task task = MakeTask(20);
        task.source.pictureWidthPx = size.width;
        task.source.pictureHeightPx = size.height;
        KxSubjectObserver observer = Observer(task);
        for (int frame = 0; frame < 20; ++frame) {
            cv::Mat picture = MadePictures::Texture({observer.WorkingSize().width, observer.WorkingSize().height}, 5);
            MadePictures::PaintObject(picture, {frame, frame, 12, 12});
            observer.AddPicture(frame, ViewOf(picture));
        }
        const auto crops = Decide(observer, task).crops;
        ASSERT_EQ(crops.size(), 20U);
        ExpectOneSizeInside(crops);
    }
}

TEST(KxSubjectDecision, TheSamePicturesGiveTheSameCrops)
{
    const auto first = Analyse(MakeTask(60), Walk);
    const auto second = Analyse(MakeTask(60), Walk);
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(first[i].x, second[i].x);
        EXPECT_EQ(first[i].y, second[i].y);
    }
}

TEST(KxSubjectDecision, TheHostsSettingsOfOpenCvAreLeftAlone)
{
    const int threads = cv::getNumThreads();
    const cv::utils::logging::LogLevel level = cv::utils::logging::getLogLevel();
    cv::setNumThreads(3);
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_FATAL);
    KxSubjectModels models{InstalledModels::Cascades(), "no network"};
    models.faces.detector = "no network";
    Analyse(MakeTask(20), Walk, 1, 20, {}, models);
    EXPECT_EQ(cv::getNumThreads(), 3);
    EXPECT_EQ(cv::utils::logging::getLogLevel(), cv::utils::logging::LOG_LEVEL_FATAL);
    cv::setNumThreads(threads);
    cv::utils::logging::setLogLevel(level);
}
