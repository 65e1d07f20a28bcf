#include <KrAutoReframe/Engine/AddCropKeyFrameCommand.h>
#include <KrAutoReframe/Engine/RemoveCropKeyFrameCommand.h>
#include <Tests/KrAutoReframe/Engine/KrAutoReframeHelperPeer.h>

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <random>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace
{

constexpr int WaitMs = 60000;
/// Two hours at 30 frames a second.
constexpr uint LongClip = 216000;

#if defined(__GLIBC__)
qint64 AllocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}
#endif

class TestCropKeyFrameCommands : public testing::Test, protected HelperFixture
{
protected:
    void OpenAndApply(int frameCount)
    {
        Open(frameCount);
        QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
        ASSERT_TRUE(helper->ApplyResults(FakeHost::MakeResults(frameCount)));
        ASSERT_TRUE(finished.wait(WaitMs));
    }

    /// Everything that an edit changes, as one text.
    QString State() const
    {
        QStringList texts{Segments(), PushedFrames()};
        const QMap<uint, QRectF> editPoints = KrAutoReframeHelperPeer::EditPoints(*helper);
        for (auto point = editPoints.cbegin(); point != editPoints.cend(); ++point) {
            texts << QStringLiteral("%1=%2").arg(QString::number(point.key()), QString::number(point.value().x()));
        }
        QString shown;
        for (const IKxAutoReframeResult& result : helper->GetDisplayResults()) {
            shown += QStringLiteral("%1 ").arg(result.cropRect().x(), 0, 'f', 6);
        }
        return texts.join(QLatin1Char('\n')) + QLatin1Char('\n') + shown;
    }

    /// Compares the display with one computed from the segments, the results and the host's keyframes.
    void ExpectDisplayIsComplete() const
    {
        QList<QRectF> expected;
        for (const IKxAutoReframeResult& result : helper->GetResults()) {
            expected.append(result.cropRect());
        }
        for (const KrEditSegment& segment : KrAutoReframeHelperPeer::Segments(*helper)) {
            for (uint frame = segment.start; frame <= segment.End(); ++frame) {
                KxCropPanZoomKeyFrameParam shown;
                ASSERT_TRUE(WorkKeyFrames().interpolatedParam(frame, &shown));
                expected[static_cast<int>(frame)] = shown.cropRect;
            }
        }
        ASSERT_EQ(helper->GetDisplayResults().size(), expected.size());
        for (int frame = 0; frame < expected.size(); ++frame) {
            const QRectF rect = helper->GetDisplayResults().at(frame).cropRect();
            ASSERT_NEAR(rect.x(), expected.at(frame).x(), 1e-12) << frame << "; " << Segments().toStdString();
        }
    }

    QString CanUndoRedo(const QSignalSpy& spy) const
    {
        QStringList texts;
        for (const QList<QVariant>& arguments : spy) {
            texts << QStringLiteral("%1%2").arg(QString::number(arguments.at(0).toInt()),
                                                QString::number(arguments.at(1).toInt()));
        }
        return texts.join(QLatin1Char(' '));
    }
};

} // namespace

TEST_F(TestCropKeyFrameCommands, HaveNoParentNoTextAndNoMergingId)
{
    OpenAndApply(100);
    const AddCropKeyFrameCommand add(10, Rect(0.9), helper.get());
    const RemoveCropKeyFrameCommand remove(10, helper.get());
    EXPECT_TRUE(add.text().isEmpty());
    EXPECT_EQ(add.id(), -1);
    EXPECT_EQ(add.childCount(), 0);
    EXPECT_TRUE(remove.text().isEmpty());
    EXPECT_EQ(remove.id(), -1);
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
}

TEST_F(TestCropKeyFrameCommands, UndoingAnAddBringsTheAnalysisBack)
{
    OpenAndApply(100);
    const QString before = State();
    helper->AddKeyFrame(50, Rect(0.9));
    EXPECT_NE(State(), before);
    helper->Undo();
    EXPECT_EQ(State(), before);
    EXPECT_DOUBLE_EQ(PushedX(50), 0.05);
}

TEST_F(TestCropKeyFrameCommands, UndoingAMergedAddBringsTheFirstSegmentBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    const QString afterFirst = State();
    helper->AddKeyFrame(40, Rect(0.8));
    EXPECT_EQ(Segments(), QStringLiteral("0..65: 10 40"));
    helper->Undo();
    EXPECT_EQ(State(), afterFirst);
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..99"));
    EXPECT_DOUBLE_EQ(ShownX(36), 0.036);
    EXPECT_DOUBLE_EQ(ShownX(65), 0.065);
}

TEST_F(TestCropKeyFrameCommands, UndoingAReplacedRectangleBringsTheOldOneBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    const QString afterFirst = State();
    helper->AddKeyFrame(10, Rect(0.5));
    EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
    helper->Undo();
    EXPECT_EQ(State(), afterFirst);
    EXPECT_DOUBLE_EQ(ShownX(10), 0.9);
}

TEST_F(TestCropKeyFrameCommands, UndoingTheRemovalOfTheOnlyPointBringsItsSegmentBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(50, Rect(0.9));
    const QString edited = State();
    helper->RemoveKeyFrame(50);
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
    helper->Undo();
    EXPECT_EQ(State(), edited);
    EXPECT_EQ(Segments(), QStringLiteral("25..75: 50"));
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..25 50 75..99"));
}

TEST_F(TestCropKeyFrameCommands, UndoingTheRemovalOfAnOuterPointBringsTheRangeBack)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    const QString edited = State();
    helper->RemoveKeyFrame(10);
    EXPECT_EQ(Segments(), QStringLiteral("25..65: 40"));
    helper->Undo();
    EXPECT_EQ(State(), edited);
}

TEST_F(TestCropKeyFrameCommands, RedoDoesTheEditAgain)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    const QString both = State();
    helper->RemoveKeyFrame(10);
    const QString removed = State();
    helper->Undo();
    EXPECT_EQ(State(), both);
    helper->Undo();
    helper->Undo();
    EXPECT_EQ(Segments(), QString());
    helper->Redo();
    helper->Redo();
    EXPECT_EQ(State(), both);
    helper->Redo();
    EXPECT_EQ(State(), removed);
}

TEST_F(TestCropKeyFrameCommands, ARedoTakesAFreshSnapshot)
{
    OpenAndApply(100);
    AddCropKeyFrameCommand command(80, Rect(0.9), helper.get());
    command.redo();
    EXPECT_EQ(Segments(), QStringLiteral("55..99: 80"));
    command.undo();
    EXPECT_EQ(Segments(), QString());
    helper->AddKeyFrame(10, Rect(0.7));
    command.redo();
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10; 55..99: 80"));
    command.undo();
    EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
    EXPECT_EQ(helper->GetEditPointFrames(), QList<uint>{10});
}

TEST_F(TestCropKeyFrameCommands, ARemovalTakesAFreshSnapshotAndRange)
{
    OpenAndApply(200);
    helper->AddKeyFrame(40, Rect(0.9));
    RemoveCropKeyFrameCommand command(40, helper.get());
    command.redo();
    command.undo();
    helper->AddKeyFrame(60, Rect(0.8));
    const QString merged = State();
    command.redo();
    EXPECT_EQ(Segments(), QStringLiteral("50..85: 60"));
    command.undo();
    EXPECT_EQ(State(), merged);
}

TEST_F(TestCropKeyFrameCommands, UndoingWhatDidNothingRestoresTheSnapshotAlone)
{
    OpenAndApply(100);
    AddCropKeyFrameCommand command(500, Rect(0.9), helper.get());
    command.redo();
    EXPECT_EQ(helper->GetEditPointFrames(), QList<uint>{500});
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
    command.undo();
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
}

TEST_F(TestCropKeyFrameCommands, AnUndoPushesTheKeyFramesOnce)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->AddKeyFrame(40, Rect(0.8));
    const int pushCount = WorkKeyFrames().PushCount();
    helper->Undo();
    EXPECT_EQ(WorkKeyFrames().PushCount(), pushCount + 1);
}

TEST_F(TestCropKeyFrameCommands, UndoAndRedoOnAnEmptyStackDoNothing)
{
    OpenAndApply(100);
    const QString before = State();
    helper->Undo();
    helper->Redo();
    EXPECT_EQ(State(), before);
    EXPECT_EQ(WorkKeyFrames().PushCount(), 1);
}

TEST_F(TestCropKeyFrameCommands, ARefusedEditIsNoStep)
{
    OpenAndApply(100);
    QSignalSpy spy(helper.get(), &KrAutoReframeHelper::sigCanUndoRedo);
    EXPECT_FALSE(helper->RemoveKeyFrame(10));
    EXPECT_EQ(spy.count(), 0);
}

TEST_F(TestCropKeyFrameCommands, AvailabilityIsReportedForBothDirectionsAtEachStep)
{
    OpenAndApply(100);
    QSignalSpy spy(helper.get(), &KrAutoReframeHelper::sigCanUndoRedo);
    helper->AddKeyFrame(10, Rect(0.9));
    EXPECT_EQ(CanUndoRedo(spy), QStringLiteral("10 10"));
    spy.clear();
    helper->AddKeyFrame(40, Rect(0.8));
    helper->Undo();
    EXPECT_EQ(CanUndoRedo(spy), QStringLiteral("10 10 11 11"));
    spy.clear();
    helper->Undo();
    EXPECT_EQ(CanUndoRedo(spy), QStringLiteral("01 01"));
    spy.clear();
    helper->Redo();
    helper->Redo();
    EXPECT_EQ(CanUndoRedo(spy), QStringLiteral("11 11 10 10"));
    spy.clear();
    Open(100);
    EXPECT_EQ(CanUndoRedo(spy), QStringLiteral("00 00"));
}

TEST_F(TestCropKeyFrameCommands, AnEditAfterAnUndoDropsWhatWasUndone)
{
    OpenAndApply(100);
    helper->AddKeyFrame(10, Rect(0.9));
    helper->Undo();
    helper->AddKeyFrame(80, Rect(0.8));
    helper->Redo();
    EXPECT_EQ(helper->GetEditPointFrames(), QList<uint>{80});
    helper->Undo();
    helper->Undo();
    EXPECT_TRUE(helper->GetEditPointFrames().isEmpty());
    EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
}

TEST_F(TestCropKeyFrameCommands, ManyStepsComeBackOneByOne)
{
    OpenAndApply(400);
    QStringList states{State()};
    for (const uint frame : {200u, 30u, 110u, 390u, 0u}) {
        helper->AddKeyFrame(frame, Rect(0.5));
        states << State();
    }
    helper->RemoveKeyFrame(110);
    while (!states.isEmpty()) {
        helper->Undo();
        EXPECT_EQ(State(), states.takeLast());
    }
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST_F(TestCropKeyFrameCommands, ThreeThousandEditsOfALongClipTakeLessThan50Megabytes)
{
    constexpr uint editCount = 3000;
    constexpr qint64 mostBytes = 50'000'000;
    // Apart, each edit has a segment of its own; together, all share one.
    for (const uint distance : {LongClip / editCount, 2u}) {
        OpenAndApply(LongClip);
        const qint64 before = AllocatedBytes();
        for (uint edit = 0; edit < editCount; ++edit) {
            helper->AddKeyFrame(edit * distance, Rect(0.5));
        }
        EXPECT_EQ(helper->GetEditPointFrames().size(), static_cast<int>(editCount));
        EXPECT_LT(AllocatedBytes() - before, mostBytes) << "at a distance of " << distance << " frames";
        for (uint edit = 0; edit < editCount; ++edit) {
            helper->Undo();
        }
        EXPECT_EQ(Segments(), QString());
        EXPECT_EQ(PushedFrames(), QStringLiteral("0..215999"));
        // The edits removed keyframes. With all of them restored, only the undo stack is counted.
        EXPECT_LT(AllocatedBytes() - before, mostBytes) << "at a distance of " << distance << " frames";
    }
}
#endif

TEST_F(TestCropKeyFrameCommands, AnyOrderOfStepsLeavesTheDisplayComplete)
{
    OpenAndApply(600);
    std::mt19937 random(1);
    const auto pick = [&random](int count) { return static_cast<uint>(random() % static_cast<unsigned>(count)); };
    for (int step = 0; step < 400; ++step) {
        const QList<uint> points = helper->GetEditPointFrames();
        switch (pick(5)) {
        case 0:
            helper->Undo();
            break;
        case 1:
            helper->Redo();
            break;
        case 2:
            if (!points.isEmpty()) {
                helper->RemoveKeyFrame(points.at(static_cast<int>(pick(points.size()))));
            }
            break;
        default:
            helper->AddKeyFrame(pick(600), Rect(pick(750) / 1000.0));
        }
        ExpectDisplayIsComplete();
        if (HasFatalFailure()) {
            FAIL() << "step " << step;
        }
    }
}
