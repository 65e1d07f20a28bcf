#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxSubject/KxSubjectFindings.h>
#include <Tests/KxModel/ServiceTest.h>

#include <QCryptographicHash>
#include <QFile>

#include <atomic>
#include <memory>
#include <thread>

using KxAutoReframeServiceTest = ServiceTest;

TEST_F(KxAutoReframeServiceTest, ATaskEndsWithOneLastEventAndAsManyResultsAsFrames)
{
    EventRecorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 90);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    m_service.StopTask(0);

    const std::vector<ServiceEvent> events = recorder.Events();
    int percent = -1;
    for (std::size_t i = 0; i + 1 < events.size(); ++i) {
        EXPECT_EQ(events[i].state, 1);
        EXPECT_GT(events[i].percent, percent);
        EXPECT_LT(events[i].percent, 100);
        percent = events[i].percent;
    }
    EXPECT_EQ(events.back().state, 2);
    EXPECT_EQ(events.back().percent, 100);

    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(clip, &results), 0);
    ASSERT_EQ(results.size(), 90);
    for (int frame = 0; frame < results.size(); ++frame) {
        const QRectF crop = results.at(frame).cropRect();
        EXPECT_EQ(results.at(frame).frame(), frame);
        EXPECT_EQ(crop.size(), results.at(0).cropRect().size());
        EXPECT_GE(crop.left(), 0.0);
        EXPECT_LE(crop.right(), 1.0 + 1e-9);
        EXPECT_NEAR(crop.width() * 160 / (crop.height() * 96), 9.0 / 16.0, 0.02);
    }
    EXPECT_LT(m_service.GetResults(QStringLiteral("other.mp4"), &results), 0);
    EXPECT_TRUE(results.isEmpty());
}

TEST_F(KxAutoReframeServiceTest, RefusesAFileThatIsNotAVideoAtOnceWithTheReason)
{
    EventRecorder recorder(m_service);
    EXPECT_FALSE(m_service.StartTask(m_folder.filePath(QStringLiteral("missing.mp4")), m_param));
    EXPECT_TRUE(m_service.LastErrorMessage().contains(QStringLiteral("missing.mp4")));
    EXPECT_FALSE(m_service.StartTask(m_folder.path(), m_param));
    EXPECT_FALSE(m_service.StartTask(MakeClip("clip.mp4", 40), IKxAutoReframeParam(16, QSize(0, 16))));
    m_service.StopTask(0);
    EXPECT_TRUE(recorder.Events().empty());
}

TEST_F(KxAutoReframeServiceTest, NoObserverIsCalledFromInsideStartTask)
{
    std::atomic_bool sameThread{false};
    const std::thread::id starter = std::this_thread::get_id();
    EventRecorder recorder(m_service, [&](const ServiceEvent&) {
        if (std::this_thread::get_id() == starter) {
            sameThread = true;
        }
    });
    ASSERT_TRUE(m_service.StartTask(MakeClip("clip.mp4", 40), m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    EXPECT_FALSE(sameThread);
}

TEST_F(KxAutoReframeServiceTest, AfterStopTaskNoEventComesAndThereAreNoResults)
{
    EventRecorder recorder(m_service);
    const QString clip = MakeClip("long.mp4", 600);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForRunning());
    m_service.StopTask(0);
    const std::size_t count = recorder.Events().size();
    for (const ServiceEvent& event : recorder.Events()) {
        EXPECT_EQ(event.state, 1);
    }
    // Another task completes and reports its events; the stopped one reports nothing more.
    const QString other = MakeClip("other.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(other, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    const std::vector<ServiceEvent> events = recorder.Events();
    for (std::size_t i = count; i < events.size(); ++i) {
        EXPECT_NE(events[i].key, events[0].key);
    }
    QList<IKxAutoReframeResult> results;
    EXPECT_LT(m_service.GetResults(clip, &results), 0);
    EXPECT_EQ(m_service.GetResults(other, &results), 0);
}

TEST_F(KxAutoReframeServiceTest, StoppingAtOnceIsSafe)
{
    EventRecorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 120);
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(m_service.StartTask(clip, m_param));
        m_service.StopTask(0);
    }
    for (const ServiceEvent& event : recorder.Events()) {
        EXPECT_EQ(event.state, 1);
    }
}

TEST_F(KxAutoReframeServiceTest, StartingTwiceStopsTheFirst)
{
    EventRecorder recorder(m_service);
    const QString first = MakeClip("first.mp4", 600);
    const QString second = MakeClip("second.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(first, m_param));
    ASSERT_TRUE(m_service.StartTask(second, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    m_service.StopTask(0);
    int ends = 0;
    for (const ServiceEvent& event : recorder.Events()) {
        ends += event.state == 2 ? 1 : 0;
    }
    EXPECT_EQ(ends, 1);
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(second, &results), 0);
    EXPECT_EQ(results.size(), 40);
}

TEST_F(KxAutoReframeServiceTest, AnObserverMayStopAndStartFromItsCall)
{
    const QString clip = MakeClip("clip.mp4", 600);
    const QString next = MakeClip("next.mp4", 40);
    std::atomic_int calls{0};
    EventRecorder recorder(m_service, [&](const ServiceEvent&) {
        if (++calls == 1) {
            m_service.StopTask(0);
            EXPECT_TRUE(m_service.StartTask(next, m_param));
        }
    });
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(next, &results), 0);
}

TEST_F(KxAutoReframeServiceTest, DestroyingTheServiceStopsTheRunningTask)
{
    const QString clip = MakeClip("clip.mp4", 600);
    auto service = std::make_unique<KxAutoReframeService>();
    auto recorder = std::make_unique<EventRecorder>(*service);
    ASSERT_TRUE(service->StartTask(clip, m_param));
    recorder.reset();
    service.reset();
}

TEST_F(KxAutoReframeServiceTest, ACutOffFileGivesAsManyResultsAsItsIndexHasFramesAndAWarning)
{
    QFile whole(MakeClip("whole.mp4", 100));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QFile cut(m_folder.filePath(QStringLiteral("cut.mp4")));
    ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
    cut.write(whole.read(whole.size() * 6 / 10));
    cut.close();

    EventRecorder recorder(m_service);
    ASSERT_TRUE(m_service.StartTask(cut.fileName(), m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(cut.fileName(), &results), 0);
    EXPECT_EQ(results.size(), 100);
    ASSERT_EQ(m_service.LastWarnings().size(), 1);
    EXPECT_TRUE(m_service.LastWarnings().first().contains(QStringLiteral("cut.mp4")));
}

TEST_F(KxAutoReframeServiceTest, TimeStampsThatSpanMoreFramesThanAnyVideoHasAreRefused)
{
    MadeVideo::Recipe recipe;
    recipe.frames = 40;
    recipe.output = QStringList{QStringLiteral("-vf"),    QStringLiteral("setpts='if(lt(N,20),N,N+7000000)/25/TB'"),
                                QStringLiteral("-vsync"), QStringLiteral("passthrough"),
                                QStringLiteral("-c:v"),   QStringLiteral("libx264"),
                                QStringLiteral("-bf"),    QStringLiteral("0")};
    const QString path = m_folder.filePath(QStringLiteral("pause.mkv"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    EXPECT_FALSE(m_service.StartTask(path, m_param));
    EXPECT_EQ(m_service.LastErrorMessage(),
              QStringLiteral("Cannot analyse pause.mkv: its time stamps span 7000040 frames, the limit is 2600000."));
}

TEST_F(KxAutoReframeServiceTest, APauseOfDaysInTheTimeStampsIsHeld)
{
    MadeVideo::Recipe recipe;
    recipe.frames = 40;
    recipe.rate = QStringLiteral("1");
    recipe.output = QStringList{QStringLiteral("-vf"),    QStringLiteral("setpts='if(lt(N,20),N,N+172800)/TB'"),
                                QStringLiteral("-vsync"), QStringLiteral("passthrough"),
                                QStringLiteral("-c:v"),   QStringLiteral("libx264"),
                                QStringLiteral("-bf"),    QStringLiteral("0")};
    const QString path = m_folder.filePath(QStringLiteral("pause.mkv"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    EventRecorder recorder(m_service);
    ASSERT_TRUE(m_service.StartTask(path, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(path, &results), 0);
    EXPECT_EQ(results.size(), 172840);
}

namespace
{

void WriteFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(contents), contents.size());
}

} // namespace

TEST_F(KxAutoReframeServiceTest, InvalidDetectorsAreReportedAndTheAnalysisContinues)
{
    const QByteArray contents = "this is no network";
    QByteArray checksums;
    for (const char* name : {"nanodet-g.onnx", "face_detection_yunet_2022mar.onnx"}) {
        WriteFile(m_folder.filePath(QLatin1String(name)), contents);
        checksums += QCryptographicHash::hash(contents, QCryptographicHash::Sha256).toHex() + "  " + name + '\n';
    }
    WriteFile(m_folder.filePath(QStringLiteral("SHA256SUMS")), checksums);
    m_service.SetNetworkFolder(m_folder.path());
    EventRecorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    EXPECT_EQ(m_service.LastWarnings(), QStringList({KxDetectorFiles::RefusedObjectDetector(m_folder.path()),
                                                     KxDetectorFiles::RefusedFaceDetector(m_folder.path())}));
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(clip, &results), 0);
}

TEST_F(KxAutoReframeServiceTest, FindingsAreKeptOnlyOnRequest)
{
    EventRecorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    EXPECT_EQ(m_service.LastFindings(), nullptr);

    m_service.SetFindings(KxAutoReframeService::Findings::Keep);
    EventRecorder second(m_service);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(second.WaitForEnd());
    const auto findings = m_service.LastFindings();
    ASSERT_NE(findings, nullptr);
    ASSERT_FALSE(findings->shots.empty());
    EXPECT_EQ(findings->shots.front().first, 0);
    EXPECT_EQ(findings->shots.back().end, 40);
    EXPECT_FALSE(findings->samples.empty());
}
