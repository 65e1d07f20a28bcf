#include <Tests/KxSubject/DecidedScenes.h>
#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/Shots/ShotPictures.h>

#include <opencv2/core/utility.hpp>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <thread>

using namespace DecidedScenes;

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
