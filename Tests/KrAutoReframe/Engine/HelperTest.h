#pragma once

#include <Tests/KrAutoReframe/Engine/KrAutoReframeHelperPeer.h>

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

constexpr uint NoFrame = 0xFFFFFFFFu;
constexpr int WaitMs = 60000;

/// A helper on a scripted host. The tests of one helper stand in three sources: its sources and the task's whole, how
/// the task ends early, and the edits.
class TestKrAutoReframeHelper : public testing::Test, protected HelperFixture
{
protected:
    bool WaitForFinished()
    {
        QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
        return finished.wait(WaitMs) && finished.count() == 1 && finished.at(0).at(0).toBool();
    }

    bool Apply(int count, double firstX = 0.0)
    {
        return helper->ApplyResults(FakeHost::MakeResults(count, firstX)) && WaitForFinished();
    }

    void OpenAndApply(int frameCount, const KxRational& frameRate = {25, 1})
    {
        Open(frameCount, frameRate);
        ASSERT_TRUE(Apply(frameCount));
    }

    /// Results whose x is 0.000 at frame 0 and 0.099 at frame 99, with an edit at frame 10.
    void OpenAndEdit()
    {
        OpenAndApply(100);
        helper->AddKeyFrame(10, Rect(0.5));
    }

    void ExpectUnchanged()
    {
        EXPECT_EQ(helper->GetResults().size(), 100);
        EXPECT_DOUBLE_EQ(helper->GetResults().at(0).cropRect().x(), 0.0);
        EXPECT_EQ(Segments(), QStringLiteral("0..35: 10"));
        EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..99"));
        EXPECT_DOUBLE_EQ(PushedX(10), 0.5);
        EXPECT_DOUBLE_EQ(PushedX(99), 0.099);
        EXPECT_DOUBLE_EQ(ShownX(10), 0.5);
        helper->AddKeyFrame(90, Rect(0.7));
        EXPECT_EQ(PushedFrames(), QStringLiteral("0 10 35..65 90 99"));
        EXPECT_DOUBLE_EQ(ShownX(50), 0.05);
        helper->Undo();
        helper->Undo();
        EXPECT_EQ(PushedFrames(), QStringLiteral("0..99"));
        EXPECT_DOUBLE_EQ(PushedX(10), 0.01);
    }

    void ExpectCancelledAndUnchanged()
    {
        QSignalSpy finished(helper.get(), &KrAutoReframeHelper::sigApplyFinished);
        ASSERT_TRUE(finished.wait(WaitMs));
        EXPECT_FALSE(finished.at(0).at(0).toBool());
        ExpectUnchanged();
    }

    /// Calls `atProgress` on the worker's thread at the first progress that it reports.
    void AtFirstProgress(const std::function<void()>& atProgress)
    {
        auto isDone = std::make_shared<bool>(false);
        QObject::connect(
            helper.get(), &KrAutoReframeHelper::sigApplyProgress, helper.get(),
            [isDone, atProgress] {
                if (!*isDone) {
                    *isDone = true;
                    atProgress();
                }
            },
            Qt::DirectConnection);
    }

    QList<uint> EditFrames() const { return helper->GetEditPointFrames(); }
};
