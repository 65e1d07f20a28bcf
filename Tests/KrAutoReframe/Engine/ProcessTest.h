#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>

#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <QSignalSpy>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

constexpr int Running = 1;
constexpr int Ended = 2;
constexpr int WaitMs = 60000;

inline FakeHost::Facts Clip(qint64 frameCount, const QSize& resolution = QSize(1920, 1080))
{
    FakeHost::Facts facts;
    facts.path = QStringLiteral("clip.mp4");
    facts.frameCount = frameCount;
    facts.resolution = resolution;
    return facts;
}

/// Records the signals of a process in order, and whether they came on its own thread.
class Listener
{
public:
    explicit Listener(KrAutoReframeProcess* process)
    {
        QObject::connect(process, &KrAutoReframeProcess::sigProcessProgress, process, [this](int value) {
            Note(QStringLiteral("progress %1").arg(value));
            progress.push_back(value);
        });
        QObject::connect(process, &KrAutoReframeProcess::sigProcessFinished, process, [this](bool success) {
            Note(success ? QStringLiteral("finished true") : QStringLiteral("finished false"));
            ends << said.last();
        });
        QObject::connect(process, &KrAutoReframeProcess::sigProcessError, process, [this](const QString& text) {
            Note(QStringLiteral("error [%1]").arg(text));
            ends << said.last();
        });
    }

    QStringList said;
    QStringList ends;
    std::vector<int> progress;
    bool isAllOnOwnThread = true;

private:
    void Note(const QString& text)
    {
        said << text;
        isAllOnOwnThread = isAllOnOwnThread && QThread::currentThread() == m_thread;
    }

    QThread* m_thread = QThread::currentThread();
};

/// A process on a scripted host. Its tests are in two sources: the start of a job, and its course and end.
class TestKrAutoReframeProcess : public testing::Test
{
protected:
    TestKrAutoReframeProcess()
    {
        FakeHost::Reset();
        m_process = std::make_unique<KrAutoReframeProcess>(nullptr);
        m_listener = std::make_unique<Listener>(m_process.get());
    }
    ~TestKrAutoReframeProcess() override
    {
        m_process.reset();
        FakeHost::Reset();
    }

    void Open(qint64 frameCount, const QSize& resolution = QSize(1920, 1080))
    {
        m_process->OpenTimeline(FakeHost::MakeTimeline({Clip(frameCount, resolution)}));
    }

    FakeHost::KeyFrameHelper& WorkKeyFrames()
    {
        return dynamic_cast<FakeHost::Timeline*>(m_process->GetHelper()->GetWorkTimeline())
            ->FirstClip()
            .CropKeyFrames();
    }

    bool WaitForFinished()
    {
        QSignalSpy finished(m_process.get(), &KrAutoReframeProcess::sigProcessFinished);
        return finished.wait(WaitMs);
    }

    FakeHost::Service& m_service = FakeHost::TheService();
    std::unique_ptr<KrAutoReframeProcess> m_process;
    std::unique_ptr<Listener> m_listener;
};
