#include <Tests/KxSubject/DecidedScenes.h>

// Videos with few, missing or strange pictures.

using namespace DecidedScenes;

TEST(KxSubjectDecisionLimits, MissingPicturesDoNotLoseTheObject)
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

TEST(KxSubjectDecisionLimits, WithoutPicturesTheCropIsInTheMiddle)
{
    const auto crops = Analyse(MakeTask(12), Walk, 1, 0);
    ASSERT_EQ(crops.size(), 12U);
    ExpectOneSizeInside(crops);
    EXPECT_NEAR(Middle(crops[5]), 0.5, 1e-12);
}

TEST(KxSubjectDecisionLimits, PlainPicturesLeaveTheCropInTheMiddle)
{
    const auto crops =
        Analyse(MakeTask(40), [](std::int64_t) { return cv::Mat(180, 320, CV_8UC3, cv::Scalar::all(90)); });
    for (const KxCropRect& crop : crops) {
        EXPECT_NEAR(Middle(crop), 0.5, 0.01);
    }
}

TEST(KxSubjectDecisionLimits, OneFrameFewFramesAndNoFrameAreAnalysed)
{
    for (const std::int64_t count : {0, 1, 2, 3, 5}) {
        const auto crops = Analyse(MakeTask(count), Walk);
        EXPECT_EQ(crops.size(), static_cast<std::size_t>(count));
        ExpectOneSizeInside(crops);
    }
}

TEST(KxSubjectDecisionLimits, TheLastCropIsHeldWhenPicturesEndEarly)
{
    const auto crops = Analyse(MakeTask(200), Walk, 1, 100);
    ASSERT_EQ(crops.size(), 200U);
    ExpectOneSizeInside(crops);
    EXPECT_NEAR(Middle(crops[199]), Middle(crops[105]), 0.05);
    EXPECT_NEAR(Middle(crops[199]), 0.6, 0.1);
}

TEST(KxSubjectDecisionLimits, APauseOfWeeksInTheTimeStampsIsHeldAndStartsAnotherShot)
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

TEST(KxSubjectDecisionLimits, AVeryLowRateIsAccepted)
{
    Task task = MakeTask(12);
    task.source.frameRate = 0.5;
    const auto crops = Analyse(task, Walk);
    ASSERT_EQ(crops.size(), 12U);
    ExpectOneSizeInside(crops);
}

TEST(KxSubjectDecisionLimits, InvalidRequestsGiveCrops)
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

TEST(KxSubjectDecisionLimits, ExtremeShapesAreAccepted)
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
