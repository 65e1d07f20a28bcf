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
