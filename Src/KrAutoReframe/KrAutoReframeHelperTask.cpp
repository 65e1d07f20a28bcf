#include "KrAutoReframeHelper.h"

#include <KxModel/IKxKeyFrameHelper.h>

#include <QMutexLocker>
#include <QUndoStack>
#include <QtConcurrent>

bool KrAutoReframeHelper::ApplyResults(const QList<IKxAutoReframeResult>& results)
{
    if (m_watcher->isRunning()) {
        return true;
    }
    if (m_frameCount > results.size()) {
        return false;
    }
    {
        const QMutexLocker lock(&m_mutex);
        m_canceled = false;
    }
    const QList<IKxAutoReframeResult> applied = results.mid(0, m_frameCount);
    m_watcher->setFuture(QtConcurrent::run([this, applied] { RunKeyFrameTask(applied); }));
    return true;
}

void KrAutoReframeHelper::Cancel()
{
    if (m_watcher->isRunning()) {
        m_watcher->cancel();
    }
}

void KrAutoReframeHelper::MarkCanceled()
{
    const QMutexLocker lock(&m_mutex);
    m_canceled = true;
}

void KrAutoReframeHelper::WaitForTask()
{
    if (m_watcher->isRunning()) {
        m_watcher->waitForFinished();
    }
}

void KrAutoReframeHelper::StopTask()
{
    if (m_watcher->isRunning()) {
        MarkCanceled();
        m_watcher->cancel();
        m_watcher->waitForFinished();
    }
}

void KrAutoReframeHelper::HandleTaskFinished()
{
    if (m_watcher->isCanceled()) {
        Q_EMIT sigApplyFinished(false);
        return;
    }
    m_editPoints.clear();
    m_segments.clear();
    m_undoStack->clear();
    RebuildDisplayResults();
    Q_EMIT sigApplyFinished(true);
}

bool KrAutoReframeHelper::IsTaskCanceled()
{
    if (!m_mutex.tryLock()) {
        return false;
    }
    const bool isCanceled = m_canceled;
    m_mutex.unlock();
    return isCanceled;
}

void KrAutoReframeHelper::RunKeyFrameTask(const QList<IKxAutoReframeResult>& results)
{
    if (m_keyFrameHelper == nullptr) {
        return;
    }
    QMap<qint64, KxCropPanZoomKeyFrameParam> keyFrames;
    const quint64 count = static_cast<quint64>(results.size());
    quint64 lastReported = 0;
    for (quint64 index = 0; index < count && !IsTaskCanceled(); ++index) {
        KxCropPanZoomKeyFrameParam keyFrame;
        keyFrame.frame = static_cast<qint64>(index);
        keyFrame.kind = KxCropPanZoomKeyFrameParam::Linear;
        keyFrame.cropRect = results.at(static_cast<int>(index)).cropRect();
        keyFrames.insert(keyFrames.constEnd(), keyFrame.frame, keyFrame);
        const quint64 progress = index * 10000 / count;
        if (progress > lastReported) {
            Q_EMIT sigApplyProgress(static_cast<double>(progress) / 10000.0);
            lastReported = progress;
        }
    }
    if (m_mutex.tryLock()) {
        m_results = results;
        m_keyFrames.swap(keyFrames);
        m_mutex.unlock();
    }
    PushKeyFrames();
}
