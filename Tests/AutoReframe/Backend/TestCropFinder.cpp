#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <Apps/CropTracks/CropTrackFile.h>
#include <Tests/Support/MadeVideo.h>

#include <KxCore/KxLanguage.h>
#include <KxEditList/KxEditList.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxSimpleTimeline.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

class TestCropFinder : public testing::Test
{
protected:
    QString MakeClip(const char* name, int frames = 50)
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(192, 108);
        recipe.frames = frames;
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }
    static CropRequest Request(const QString& path, const QSize& aspect = QSize(9, 16))
    {
        CropRequest request;
        request.path = path;
        request.plan.aspect = aspect;
        return request;
    }
    FoundCrops Find(const CropRequest& request)
    {
        std::optional<FoundCrops> found;
        const auto task = m_backend.FindCrops(request, {{}, [&found](const FoundCrops& end) { found = end; }});
        EXPECT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 60000));
        return found.value_or(FoundCrops());
    }

    QTemporaryDir m_folder;
    HostMediaBackend m_backend;
};

} // namespace

TEST_F(TestCropFinder, FindsTheCropOfEveryFrame)
{
    const FoundCrops found = Find(Request(MakeClip("clip.mp4")));
    ASSERT_EQ(found.outcome, KxOutcome::Done) << found.message.toStdString();
    ASSERT_NE(found.request.source.crops, nullptr);
    EXPECT_EQ(found.request.source.crops->size(), 50U);
    EXPECT_EQ(found.request.settings.resolution, QSize(60, 108));
    EXPECT_NEAR(found.request.source.crops->front().width() * 192, 60.75, 0.01);
}

TEST_F(TestCropFinder, AnotherAspectRatioOfTheSameVideoIsNotDecodedAgain)
{
    const QString clip = MakeClip("clip.mp4");
    ASSERT_EQ(Find(Request(clip)).outcome, KxOutcome::Done);
    std::atomic_int steps{0};
    std::optional<FoundCrops> found;
    const auto task = m_backend.FindCrops(
        Request(clip, QSize(1, 1)), {[&steps](int) { ++steps; }, [&found](const FoundCrops& end) { found = end; }});
    ASSERT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 60000));
    EXPECT_EQ(found->outcome, KxOutcome::Done);
    EXPECT_EQ(found->request.settings.resolution, QSize(108, 108));
    EXPECT_EQ(steps, 0);
}

TEST_F(TestCropFinder, TheResultCanHaveAnotherSizeThanTheCrop)
{
    CropRequest request = Request(MakeClip("clip.mp4"));
    request.plan.shortSidePx = 1080;
    EXPECT_EQ(Find(request).request.settings.resolution, QSize(1080, 1920));
    request.plan.aspect = QSize(21, 9);
    request.plan.shortSidePx = 720;
    EXPECT_EQ(Find(request).request.settings.resolution, QSize(1680, 720));
    request.plan.shortSidePx = 0;
    request.plan.heightPx = 540;
    EXPECT_EQ(Find(request).request.settings.resolution, QSize(1260, 540));
}

TEST_F(TestCropFinder, EditPointsOfTheDialogAreKeptTo)
{
    CropRequest request = Request(MakeClip("clip.mp4"));
    const FoundCrops automatic = Find(request);
    const double width = automatic.request.source.crops->at(25).width();
    request.edits.editPoints.insert(25, QRectF(0.0, 0.0, width, 1.0));
    const FoundCrops edited = Find(request);
    ASSERT_EQ(edited.outcome, KxOutcome::Done);
    EXPECT_NE(automatic.request.source.crops->at(25).left(), 0.0);
    EXPECT_EQ(edited.request.source.crops->at(25).left(), 0.0);
}

TEST_F(TestCropFinder, InATrimmedFileEditPointsHoldWhereTheirPicturesAre)
{
    const QString footage = QStringLiteral("/usr/share/doc/opencv-doc/examples/data/Megamind.avi");
    if (!QFile::exists(footage)) {
        GTEST_SKIP() << "needs Megamind.avi of the package opencv-doc";
    }
    KxAutoReframeService& service = KxAutoReframeService::Instance();
    ASSERT_TRUE(service.StartTask(footage, IKxAutoReframeParam(16, QSize(9, 16))));
    QList<IKxAutoReframeResult> results;
    ASSERT_TRUE(QTest::qWaitFor([&] { return service.GetResults(footage, &results) == 0; }, 60000));
    const QRectF placed(0.0, 0.0, results.first().cropRect().width(), 1.0);
    CropRequest request = Request(m_folder.filePath(QStringLiteral("trimmed.mp4")));
    const QList<qint64> frames{20, 120};
    const QList<QByteArray> pictures = service.DescribeFrames(footage, frames);
    for (int i = 0; i < frames.size(); ++i) {
        request.edits.editPoints.insert(static_cast<uint>(frames.at(i)), placed);
        request.edits.editPictures.insert(static_cast<uint>(frames.at(i)), pictures.at(i));
    }

    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-ss"), QStringLiteral("2.5"), QStringLiteral("-i"), footage,
                                      QStringLiteral("-an"), QStringLiteral("-vf"), QStringLiteral("scale=480:-2"),
                                      QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-crf"),
                                      QStringLiteral("28"), request.path}));
    const FoundCrops found = Find(request);
    ASSERT_EQ(found.outcome, KxOutcome::Done) << found.message.toStdString();
    // 2.46 s were cut away, 59 frames. Pictures that were skipped make a difference of up to two frames.
    ASSERT_EQ(found.clip->edits.size(), 1U) << "the first one was cut away";
    EXPECT_EQ(found.missingEdits, 1);
    EXPECT_NEAR(static_cast<double>(found.clip->edits.front()), 120.0 - 59.0, 2.0);
    EXPECT_EQ(found.request.source.crops->at(static_cast<std::size_t>(found.clip->edits.front())).left(), 0.0);
}

TEST_F(TestCropFinder, ChoicesOfTheDialogAreKeptTo)
{
    CropRequest request = Request(MakeClip("clip.mp4"));
    request.edits.choices = R"({"version":1,"choices":[{"kind":"hold","centre":[0.9,0.5]}]})";
    const FoundCrops found = Find(request);
    ASSERT_EQ(found.outcome, KxOutcome::Done) << found.message.toStdString();
    for (const QRectF& crop : *found.request.source.crops) {
        EXPECT_NEAR(crop.right(), 1.0, 0.01);
    }
    EXPECT_EQ(found.missingEdits, 0);
}

TEST_F(TestCropFinder, ChoicesWhosePicturesAreNotInTheVideoAreCounted)
{
    CropRequest request = Request(MakeClip("clip.mp4"));
    request.edits.choices = R"({"version":1,"choices":[{"kind":"hold","centre":[0.9,0.5],"from":0,"to":1,
        "pictures":{"0.1":"0123456789abcdef","0.4":"fedcba9876543210","0.8":"00ff00ff00ff00ff"}}]})";
    const FoundCrops found = Find(request);
    ASSERT_EQ(found.outcome, KxOutcome::Done) << found.message.toStdString();
    EXPECT_EQ(found.missingEdits, 1);
}

TEST_F(TestCropFinder, TimelinesOfTheDialogCanBeReleasedMeanwhile)
{
    std::optional<FoundCrops> found;
    const auto task =
        m_backend.FindCrops(Request(MakeClip("clip.mp4")), {{}, [&found](const FoundCrops& end) { found = end; }});
    ASSERT_TRUE(QTest::qWaitFor(
        [&found] {
            KxSimpleTimeline::ReleaseAll();
            return found.has_value();
        },
        60000));
    EXPECT_EQ(found->outcome, KxOutcome::Done);
}

TEST_F(TestCropFinder, AnErrorMessageNamesTheVideoAndTheReason)
{
    EXPECT_EQ(Find(Request(MakeClip("clip.mp4"), QSize(16, 9))).message,
              QStringLiteral("Cannot reframe clip.mp4: it has the aspect ratio 16:9 already."));
    EXPECT_EQ(Find(Request(MakeClip("short.mp4", 20))).message,
              QStringLiteral("Cannot reframe short.mp4: it has only 20 frames; 32 are needed."));
    KxLanguage::Install(QStringLiteral("en"));
    EXPECT_EQ(Find(Request(MakeClip("still.mp4", 1))).message,
              QStringLiteral("Cannot reframe still.mp4: it has only 1 frame; 32 are needed."));
    EXPECT_TRUE(
        Find(Request(m_folder.filePath(QStringLiteral("none.mp4")))).message.contains(QLatin1String("none.mp4")));
}

TEST_F(TestCropFinder, ACancelledSearchEndsAsCancelled)
{
    std::optional<FoundCrops> found;
    const auto task =
        m_backend.FindCrops(Request(MakeClip("clip.mp4")), {{}, [&found](const FoundCrops& end) { found = end; }});
    task->Cancel();
    ASSERT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 60000));
    EXPECT_EQ(found->outcome, KxOutcome::Cancelled);
    EXPECT_TRUE(found->message.isEmpty());
}

TEST_F(TestCropFinder, ASearchThatIsDestroyedReportsNothing)
{
    int ends = 0;
    auto task = m_backend.FindCrops(Request(MakeClip("clip.mp4")), {{}, [&ends](const FoundCrops&) { ++ends; }});
    task.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(ends, 0);
}

TEST_F(TestCropFinder, ASavedCropTrackIsReadAgain)
{
    const QString clip = MakeClip("clip.mp4");
    const FoundCrops found = Find(Request(clip));
    for (const char* const name : {"track.json", "track.csv"}) {
        const KxResult<QString> saved = m_backend.SaveCropTrack(found, m_folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(saved) << saved.Message().toStdString();
        CropRequest request = Request(clip);
        request.cropTrack = *saved;
        request.edits.editPoints.insert(25, QRectF(0.0, 0.0, 0.3, 1.0));
        const FoundCrops read = Find(request);
        ASSERT_EQ(read.outcome, KxOutcome::Done) << read.message.toStdString();
        ASSERT_EQ(read.request.source.crops->size(), found.request.source.crops->size());
        for (size_t frame = 0; frame < found.request.source.crops->size(); ++frame) {
            EXPECT_NEAR(read.request.source.crops->at(frame).left(), found.request.source.crops->at(frame).left(),
                        1e-9);
        }
        EXPECT_EQ(read.request.settings.resolution, QSize(60, 108));
    }
}

TEST_F(TestCropFinder, AnEditListHasTheEditsAndTheSizeOfTheVideo)
{
    CropRequest request = Request(MakeClip("clip.mp4"));
    request.edits.editPoints.insert(25, QRectF(0.0, 0.0, 60.75 / 192, 1.0));
    const FoundCrops found = Find(request);
    ASSERT_NE(found.clip, nullptr);
    EXPECT_EQ(found.clip->outputSize, QSize(60, 108));
    EXPECT_EQ(found.clip->edits, std::vector<qint64>{25});
    ASSERT_FALSE(found.clip->shotStarts.empty());
    EXPECT_EQ(found.clip->shotStarts.front(), 0);
    for (const QString& suffix : KxEditList::Suffixes()) {
        const KxResult<QString> saved =
            m_backend.SaveEditList(found, m_folder.filePath(QStringLiteral("crop.") + suffix));
        ASSERT_TRUE(saved) << saved.Message().toStdString();
        QFile file(*saved);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), KxEditList::Text(*found.clip, suffix)) << suffix.toStdString();
    }
}

TEST_F(TestCropFinder, ACropTrackOfAnotherVideoIsRefused)
{
    const FoundCrops found = Find(Request(MakeClip("short.mp4", 40)));
    const KxResult<QString> saved = m_backend.SaveCropTrack(found, m_folder.filePath(QStringLiteral("track.json")));
    ASSERT_TRUE(saved);
    CropRequest request = Request(MakeClip("clip.mp4"));
    request.cropTrack = *saved;
    EXPECT_EQ(Find(request).message,
              QStringLiteral("Cannot use track.json: it has the crops of 40 frames, and clip.mp4 has 50 frames."));
    request.path = MakeClip("shorter.mp4", 33);
    EXPECT_EQ(Find(request).message,
              QStringLiteral("Cannot use track.json: it holds more frames than the video, which has 33."));
}
