#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxSubject/KxSubjectFindings.h>
#include <Tests/Support/MadeVideo.h>

#include <QCryptographicHash>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>

namespace
{

struct Event {
    qint64 key;
    int state;
    int percent;
};

class Recorder : public IKxAutoReframeEventObserver
{
public:
    explicit Recorder(KxAutoReframeService& service)
        : m_service(service)
    {
        m_service.AddObserver(this);
    }
    ~Recorder() override { m_service.RemoveObserver(this); }

    void OnAutoReframeEvent(qint64 key, int state, int percent) override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_events.push_back({key, state, percent});
            m_changed.notify_all();
        }
        if (onEvent) {
            onEvent(state);
        }
    }

    bool WaitFor(const std::function<bool(const Event&)>& wanted)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(60),
                                  [&] { return std::any_of(m_events.begin(), m_events.end(), wanted); });
    }
    bool WaitForEnd()
    {
        return WaitFor([](const Event& event) { return event.state == 2; });
    }
    std::vector<Event> Events()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_events;
    }

    std::function<void(int state)> onEvent;

private:
    KxAutoReframeService& m_service;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Event> m_events;
};

class KxAutoReframeServiceTest : public testing::Test
{
protected:
    QString MakeClip(const char* name, int frames)
    {
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        recipe.output = QStringList{QStringLiteral("-c:v"),      QStringLiteral("libx264"),   QStringLiteral("-g"),
                                    QStringLiteral("10"),        QStringLiteral("-pix_fmt"),  QStringLiteral("yuv420p"),
                                    QStringLiteral("-movflags"), QStringLiteral("+faststart")};
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }

    QTemporaryDir m_folder;
    KxAutoReframeService m_service;
    const IKxAutoReframeParam m_param{16, QSize(9, 16)};
};

} // namespace

TEST_F(KxAutoReframeServiceTest, ATaskEndsWithOneLastEventAndAsManyResultsAsFrames)
{
    Recorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 90);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    m_service.StopTask(0);

    const std::vector<Event> events = recorder.Events();
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
    Recorder recorder(m_service);
    EXPECT_FALSE(m_service.StartTask(m_folder.filePath(QStringLiteral("missing.mp4")), m_param));
    EXPECT_TRUE(m_service.LastErrorMessage().contains(QStringLiteral("missing.mp4")));
    EXPECT_FALSE(m_service.StartTask(m_folder.path(), m_param));
    EXPECT_FALSE(m_service.StartTask(MakeClip("clip.mp4", 40), IKxAutoReframeParam(16, QSize(0, 16))));
    m_service.StopTask(0);
    EXPECT_TRUE(recorder.Events().empty());
}

TEST_F(KxAutoReframeServiceTest, NoObserverIsCalledFromInsideStartTask)
{
    Recorder recorder(m_service);
    std::atomic_bool sameThread{false};
    const std::thread::id starter = std::this_thread::get_id();
    recorder.onEvent = [&](int) {
        if (std::this_thread::get_id() == starter) {
            sameThread = true;
        }
    };
    ASSERT_TRUE(m_service.StartTask(MakeClip("clip.mp4", 40), m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    EXPECT_FALSE(sameThread);
}

TEST_F(KxAutoReframeServiceTest, AfterStopTaskNoEventComesAndThereAreNoResults)
{
    Recorder recorder(m_service);
    const QString clip = MakeClip("long.mp4", 600);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitFor([](const Event& event) { return event.state == 1; }));
    m_service.StopTask(0);
    const std::size_t count = recorder.Events().size();
    for (const Event& event : recorder.Events()) {
        EXPECT_EQ(event.state, 1);
    }
    // Another task completes and reports its events; the stopped one reports nothing more.
    const QString other = MakeClip("other.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(other, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    const std::vector<Event> events = recorder.Events();
    for (std::size_t i = count; i < events.size(); ++i) {
        EXPECT_NE(events[i].key, events[0].key);
    }
    QList<IKxAutoReframeResult> results;
    EXPECT_LT(m_service.GetResults(clip, &results), 0);
    EXPECT_EQ(m_service.GetResults(other, &results), 0);
}

TEST_F(KxAutoReframeServiceTest, StoppingAtOnceIsSafe)
{
    Recorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 120);
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(m_service.StartTask(clip, m_param));
        m_service.StopTask(0);
    }
    for (const Event& event : recorder.Events()) {
        EXPECT_EQ(event.state, 1);
    }
}

TEST_F(KxAutoReframeServiceTest, StartingTwiceStopsTheFirst)
{
    Recorder recorder(m_service);
    const QString first = MakeClip("first.mp4", 600);
    const QString second = MakeClip("second.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(first, m_param));
    ASSERT_TRUE(m_service.StartTask(second, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    m_service.StopTask(0);
    int ends = 0;
    for (const Event& event : recorder.Events()) {
        ends += event.state == 2 ? 1 : 0;
    }
    EXPECT_EQ(ends, 1);
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(second, &results), 0);
    EXPECT_EQ(results.size(), 40);
}

TEST_F(KxAutoReframeServiceTest, AnObserverMayStopAndStartFromItsCall)
{
    Recorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 600);
    const QString next = MakeClip("next.mp4", 40);
    std::atomic_int calls{0};
    recorder.onEvent = [&](int) {
        if (++calls == 1) {
            m_service.StopTask(0);
            EXPECT_TRUE(m_service.StartTask(next, m_param));
        }
    };
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(m_service.GetResults(next, &results), 0);
}

TEST_F(KxAutoReframeServiceTest, DestroyingTheServiceStopsTheRunningTask)
{
    const QString clip = MakeClip("clip.mp4", 600);
    auto service = std::make_unique<KxAutoReframeService>();
    auto recorder = std::make_unique<Recorder>(*service);
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

    Recorder recorder(m_service);
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
    Recorder recorder(m_service);
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
    Recorder recorder(m_service);
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
    Recorder recorder(m_service);
    const QString clip = MakeClip("clip.mp4", 40);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(recorder.WaitForEnd());
    EXPECT_EQ(m_service.LastFindings(), nullptr);

    m_service.SetFindings(KxAutoReframeService::Findings::Keep);
    Recorder second(m_service);
    ASSERT_TRUE(m_service.StartTask(clip, m_param));
    ASSERT_TRUE(second.WaitForEnd());
    const auto findings = m_service.LastFindings();
    ASSERT_NE(findings, nullptr);
    ASSERT_FALSE(findings->shots.empty());
    EXPECT_EQ(findings->shots.front().first, 0);
    EXPECT_EQ(findings->shots.back().end, 40);
    EXPECT_FALSE(findings->samples.empty());
}

namespace
{

bool IsRunning(const Event& event)
{
    return event.state == 1;
}

/// Analyses the clip; returns the left edge of each crop.
std::vector<double> Lefts(KxAutoReframeService& service, const QString& clip, const QSize& aspect, bool& decoded)
{
    Recorder recorder(service);
    EXPECT_TRUE(service.StartTask(clip, IKxAutoReframeParam(16, aspect)));
    EXPECT_TRUE(recorder.WaitForEnd());
    const std::vector<Event> events = recorder.Events();
    decoded = std::any_of(events.begin(), events.end(), &IsRunning);
    QList<IKxAutoReframeResult> results;
    EXPECT_EQ(service.GetResults(clip, &results), 0);
    std::vector<double> lefts;
    for (const IKxAutoReframeResult& result : qAsConst(results)) {
        lefts.push_back(result.cropRect().x());
    }
    return lefts;
}

} // namespace

TEST_F(KxAutoReframeServiceTest, AnotherAspectOfTheSameFileNeedsNoDecoding)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    ASSERT_TRUE(decoded);
    const std::vector<double> fromRecord = Lefts(m_service, clip, {1, 1}, decoded);
    EXPECT_FALSE(decoded);
    KxAutoReframeService fresh;
    EXPECT_EQ(fromRecord, Lefts(fresh, clip, {1, 1}, decoded));
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceTest, AFileThatWasReplacedIsLookedAtAgain)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_EQ(MakeClip("clip.mp4", 50), clip);
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded).size(), 50U);
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceTest, ARecordInTheFolderServesTheNextProgram)
{
    const QString clip = MakeClip("clip.mp4", 60);
    const QString folder = m_folder.filePath(QStringLiteral("records"));
    m_service.SetRecordFolder(folder);
    bool decoded = false;
    const std::vector<double> first = Lefts(m_service, clip, {9, 16}, decoded);
    KxAutoReframeService next;
    next.SetRecordFolder(folder);
    EXPECT_EQ(Lefts(next, clip, {9, 16}, decoded), first);
    EXPECT_FALSE(decoded);
}

TEST_F(KxAutoReframeServiceTest, AnAnalysisThatWasStoppedLeavesNoRecord)
{
    const QString clip = MakeClip("clip.mp4", 400);
    {
        Recorder recorder(m_service);
        ASSERT_TRUE(m_service.StartTask(clip, m_param));
        ASSERT_TRUE(recorder.WaitFor(&IsRunning));
        m_service.StopTask(0);
    }
    bool decoded = false;
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded).size(), 400U);
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceTest, ShotsAreCollectedOnlyOnRequest)
{
    const QString clip = MakeClip("clip.mp4", 40);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_TRUE(m_service.GetShots(clip).isEmpty());

    m_service.CollectShots(true);
    Lefts(m_service, clip, {9, 16}, decoded);
    const QList<KxAutoReframeShot> shots = m_service.GetShots(clip);
    ASSERT_FALSE(shots.isEmpty());
    EXPECT_EQ(shots.first().first, 0);
    EXPECT_EQ(shots.last().end, 40);
    EXPECT_GT(shots.first().confidence, 0.0);
    EXPECT_TRUE(m_service.GetShots(m_folder.filePath(QStringLiteral("other.mp4"))).isEmpty());
    EXPECT_EQ(m_service.LastFindings(), nullptr);
}

TEST_F(KxAutoReframeServiceTest, AVideoIsKnownOnceItWasAnalysed)
{
    const QString clip = MakeClip("clip.mp4", 40);
    EXPECT_FALSE(m_service.IsKnown(clip));
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_TRUE(m_service.IsKnown(clip));
    EXPECT_FALSE(m_service.IsKnown(m_folder.filePath(QStringLiteral("missing.mp4"))));
}

TEST_F(KxAutoReframeServiceTest, ClientsFindTheShotsByACast)
{
    IKxAutoReframeService* const service = getAutoReframeService();
    EXPECT_NE(dynamic_cast<IKxAutoReframeShots*>(service), nullptr);
}

TEST_F(KxAutoReframeServiceTest, ChoicesOfAClientDecideTheCrop)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    const std::vector<double> automatic = Lefts(m_service, clip, {9, 16}, decoded);
    auto& service = static_cast<IKxAutoReframeChoices&>(m_service);
    KxAutoReframeChoice hold;
    hold.kind = KxAutoReframeChoice::Kind::Hold;
    hold.toSeconds = 1000.0;
    hold.centre = QPointF(0.0, 0.5);
    service.SetChoices({hold});
    const std::vector<double> held = Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_FALSE(decoded);
    EXPECT_EQ(held, std::vector<double>(60, 0.0));
    service.SetChoices({});
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded), automatic);
}

TEST_F(KxAutoReframeServiceTest, ChoicesAreReadAsTheyWereWritten)
{
    KxAutoReframeChoice follow;
    follow.kind = KxAutoReframeChoice::Kind::Follow;
    follow.fromSeconds = 1.5;
    follow.toSeconds = 4.25;
    follow.seeds = {{2.0, QRectF(0.25, 0.5, 0.125, 0.25), true}, {3.0, QRectF(0.5, 0.5, 0.125, 0.25), false}};
    KxAutoReframeChoice hold;
    hold.kind = KxAutoReframeChoice::Kind::Hold;
    hold.fromSeconds = 4.25;
    hold.toSeconds = 5.0;
    hold.centre = QPointF(0.25, 0.75);
    const QList<KxAutoReframeChoice> choices{follow, hold};
    EXPECT_EQ(m_service.ReadChoices(m_service.WriteChoices({}, choices)), choices);
    EXPECT_TRUE(m_service.ReadChoices("no JSON").isEmpty());
    EXPECT_TRUE(m_service.ReadChoices({}).isEmpty());
}

TEST_F(KxAutoReframeServiceTest, ABoxIsGuessedAroundAPlaceInAFrame)
{
    const QString clip = MakeClip("clip.mp4", 20);
    const QRectF box = m_service.GuessBox(clip, 10, QPointF(0.5, 0.5)).box;
    EXPECT_FALSE(box.isEmpty());
    EXPECT_TRUE(box.contains(QPointF(0.5, 0.5)));
    EXPECT_TRUE(
        m_service.GuessBox(m_folder.filePath(QStringLiteral("missing.mp4")), 10, QPointF(0.5, 0.5)).box.isEmpty());
}
