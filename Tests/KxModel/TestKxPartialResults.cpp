#include <KxModel/KxAutoReframeService.h>
#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxFollowTracks.h>
#include <KxModel/KxRecordStore.h>
#include <Tests/KxModel/TwoThings.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <future>
#include <vector>

namespace
{

constexpr int Frames = 60;
constexpr int SeedFrame = 40;
constexpr double Rate = 25.0;

using TwoThings::Still;
using Results = QList<IKxAutoReframeResult>;

std::vector<QRectF> Crops(const Results& results)
{
    std::vector<QRectF> crops;
    for (const IKxAutoReframeResult& result : results) {
        crops.push_back(result.cropRect());
    }
    return crops;
}

/// A person points at the thing that stands still.
class KxPartialResultsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(MadeVideo::Make(Clip(), TwoThings::Recipe(Frames)));
        m_settings.records = std::make_shared<KxRecordStore>();
        ASSERT_EQ(Analyse().outcome, KxOutcome::Done);
        KxSubjectChoice choice;
        choice.kind = KxChoiceKind::Follow;
        choice.seeds = {{SeedFrame / Rate, {Still.x(), Still.y(), Still.width(), Still.height()}}};
        m_settings.choices = {choice};
    }
    QString Clip() const { return m_folder.filePath(QStringLiteral("clip.mp4")); }

    KxAnalysis::Result Analyse(const KxCancelToken& cancel = {})
    {
        const auto analysis = KxVideoAnalysis::Open(Clip(), IKxAutoReframeParam(16, QSize(9, 16)), m_settings, cancel);
        return analysis ? (*analysis)->Run([](int) {}) : KxAnalysis::Result();
    }
    /// After each picture.
    void TakeAll(const std::function<void(const Results&)>& take)
    {
        m_settings.partial = {take, std::chrono::milliseconds(0), std::chrono::milliseconds(0), 0};
    }

    QTemporaryDir m_folder;
    KxAnalysisSettings m_settings;
};

} // namespace

TEST_F(KxPartialResultsTest, TheyGrowOutwardFromTheSeedToTheEndsOfTheShot)
{
    std::vector<Results> taken;
    TakeAll([&taken](const Results& results) { taken.push_back(results); });
    ASSERT_EQ(Analyse().outcome, KxOutcome::Done);
    ASSERT_GT(taken.size(), 10U);
    qint64 first = SeedFrame;
    qint64 last = SeedFrame;
    for (const Results& results : taken) {
        ASSERT_FALSE(results.isEmpty());
        EXPECT_LE(results.first().frame(), first);
        EXPECT_GE(results.last().frame(), last);
        first = results.first().frame();
        last = results.last().frame();
        ASSERT_EQ(results.size(), last - first + 1);
        for (int i = 0; i < results.size(); ++i) {
            EXPECT_EQ(results.at(i).frame(), first + i);
            EXPECT_LT(results.at(i).cropRect().x(), Still.left()) << first + i;
        }
    }
    EXPECT_EQ(taken.front().first().frame(), SeedFrame);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, Frames - 1);
}

TEST_F(KxPartialResultsTest, TheAnswerIsTheSameWithoutThem)
{
    const std::vector<QRectF> without = Crops(Analyse().crops);
    int taken = 0;
    TakeAll([&taken](const Results&) { ++taken; });
    EXPECT_EQ(Crops(Analyse().crops), without);
    EXPECT_GT(taken, 0);
    EXPECT_EQ(without.size(), static_cast<std::size_t>(Frames));
}

TEST_F(KxPartialResultsTest, WhatAnEarlierProgramFollowedIsNotFollowedAgain)
{
    QTemporaryDir folder;
    int taken = 0;
    TakeAll([&taken](const Results&) { ++taken; });
    std::vector<std::vector<QRectF>> answers;
    for (int program = 0; program < 2; ++program) {
        taken = 0;
        m_settings.records = std::make_shared<KxRecordStore>();
        m_settings.records->SetFolder(folder.path());
        m_settings.tracks = std::make_shared<KxFollowTracks>(m_settings.records->Folder());
        answers.push_back(Crops(Analyse().crops));
        EXPECT_EQ(taken > 0, program == 0);
    }
    EXPECT_EQ(answers[0].size(), static_cast<std::size_t>(Frames));
    EXPECT_EQ(answers[1], answers[0]);
}

TEST_F(KxPartialResultsTest, WhatMayHaveBeenLostIsReportedWithoutAWarning)
{
    KxFollowTrack track;
    for (int frame = 0; frame < Frames; frame += 2) {
        track.points.push_back({frame, m_settings.choices.front().seeds.front().box, 0.9F, frame >= 20});
    }
    m_settings.tracks = std::make_shared<KxFollowTracks>();
    m_settings.tracks->Add(KxRecordStore::KeyOf(Clip(), KxDetectorFiles::Read({}).models), m_settings.choices.front(),
                           track);
    const KxAnalysis::Result result = Analyse();
    ASSERT_EQ(result.losses.size(), 1);
    EXPECT_EQ(result.losses.first().kind, KxAutoReframeLoss::Kind::Doubted);
    EXPECT_EQ(result.losses.first().first, 20);
    EXPECT_EQ(result.losses.first().last, Frames - 2);
    EXPECT_TRUE(result.warnings.isEmpty());
}

TEST_F(KxPartialResultsTest, NoneComesAfterACancel)
{
    // Once while pictures are decoded, once while the follower goes back through those it has kept.
    for (const int cancelledAt : {3, 40}) {
        const KxCancelToken cancel;
        int taken = 0;
        TakeAll([&](const Results&) {
            if (++taken == cancelledAt) {
                cancel.Cancel();
            }
        });
        EXPECT_EQ(Analyse(cancel).outcome, KxOutcome::Cancelled);
        EXPECT_EQ(taken, cancelledAt);
    }
}

TEST_F(KxPartialResultsTest, AnAnswerThatComesSoonHasNone)
{
    bool isTaken = false;
    TakeAll([&isTaken](const Results&) { isTaken = true; });
    m_settings.partial.first = std::chrono::hours(1);
    EXPECT_EQ(Analyse().outcome, KxOutcome::Done);
    EXPECT_FALSE(isTaken);
}

TEST_F(KxPartialResultsTest, BetweenTwoThereIsAPause)
{
    int taken = 0;
    TakeAll([&taken](const Results&) { ++taken; });
    m_settings.partial.between = std::chrono::hours(1);
    EXPECT_EQ(Analyse().outcome, KxOutcome::Done);
    EXPECT_EQ(taken, 1);
}

namespace
{

/// An analysis that the test leads step by step.
class LedAnalysis final : public KxAnalysis
{
public:
    explicit LedAnalysis(std::function<void()> work)
        : m_work(std::move(work))
    {
    }
    Result Run(const std::function<void(int)>&) override
    {
        m_work();
        Result result;
        result.outcome = KxOutcome::Done;
        return result;
    }

private:
    std::function<void()> m_work;
};

class PartialResultsOfService : public testing::Test, public IKxAutoReframeEventObserver
{
protected:
    PartialResultsOfService() { m_service.AddObserver(this); }
    ~PartialResultsOfService() override { m_service.RemoveObserver(this); }

    void OnAutoReframeEvent(qint64, int state, int) override
    {
        constexpr int ended = 2;
        if (state == ended) {
            m_ended.set_value();
        }
    }
    bool Start(const QString& path) { return m_service.StartTask(path, IKxAutoReframeParam(16, QSize(9, 16))); }
    int Found(const QString& path) const { return m_service.GetPartialResults(path).size(); }

    const QString m_path = QStringLiteral("/clip.mp4");
    const Results m_some{IKxAutoReframeResult(3, QRectF(0.1, 0.0, 0.3, 1.0))};
    std::function<void(const Results&)> m_take; ///< of the newest task
    std::function<void()> m_work;               ///< of every task, on its thread
    std::promise<void> m_ended;                 ///< of the only task that is not stopped
    KxAutoReframeService m_service{[this](const QString&, const IKxAutoReframeParam&,
                                          const KxAnalysisSettings& settings, const KxCancelToken&,
                                          const std::shared_ptr<KxVideoScanner>&) {
        m_take = settings.partial.take;
        return KxResult<std::unique_ptr<KxAnalysis>>(std::make_unique<LedAnalysis>(m_work));
    }};
};

} // namespace

TEST_F(PartialResultsOfService, AreThoseOfTheRunningTask)
{
    m_service.CollectPartialResults(true);
    m_work = [this] {
        EXPECT_EQ(Found(m_path), 0);
        m_take(m_some);
        EXPECT_EQ(Found(m_path), 1);
        EXPECT_EQ(Found(QStringLiteral("/other.mp4")), 0);
    };
    ASSERT_TRUE(Start(m_path));
    m_ended.get_future().wait();
    EXPECT_EQ(Found(m_path), 0);
}

TEST_F(PartialResultsOfService, ThoseOfAStoppedTaskAreGoneAndNoneFollow)
{
    m_service.CollectPartialResults(true);
    std::promise<void> worked;
    m_work = [&] {
        m_take(m_some);
        m_service.StopTask(0);
        EXPECT_EQ(Found(m_path), 0);
        m_take(m_some);
        EXPECT_EQ(Found(m_path), 0);
        worked.set_value();
    };
    ASSERT_TRUE(Start(m_path));
    worked.get_future().wait();
    const std::function<void(const Results&)> late = m_take;
    m_work = [&] {
        late(m_some);
        EXPECT_EQ(Found(m_path), 0);
        m_take(m_some);
        EXPECT_EQ(Found(m_path), 1);
    };
    ASSERT_TRUE(Start(m_path));
    m_ended.get_future().wait();
}

TEST_F(PartialResultsOfService, AreMadeOnlyOnRequest)
{
    m_work = [this] { EXPECT_FALSE(m_take); };
    ASSERT_TRUE(Start(m_path));
    m_ended.get_future().wait();
}
