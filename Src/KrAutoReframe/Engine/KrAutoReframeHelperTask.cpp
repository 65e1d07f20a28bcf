#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <KxModel/IKxKeyFrameHelper.h>

#include <QUndoStack>
#include <QtConcurrent>

#include <mutex>

bool KrAutoReframeHelper::ApplyResults(const QList<IKxAutoReframeResult>& results)
{
    if (m_watcher->isRunning()) {
        return true;
    }
    if (m_frameCount > results.size()) {
        return false;
    }
    {
        const std::lock_guard<QBasicMutex> lock(Guard());
        m_canceled = false;
    }
    if (!m_isEndDue && !m_results.isEmpty()) {
        m_earlier = AppliedResults{m_results, m_keyFrames};
    }
    m_isEndDue = true;
    m_isDisplayCurrent = false;
    const QList<IKxAutoReframeResult> applied = results.mid(0, m_frameCount);
    IKxCropPanZoomKeyFrameHelper* const target = m_keyFrameHelper;
    m_watcher->setFuture(QtConcurrent::run([this, target, applied] { RunKeyFrameTask(target, applied); }));
    return true;
}

void KrAutoReframeHelper::Cancel()
{
    if (m_isEndDue) {
        m_watcher->cancel();
    }
}

void KrAutoReframeHelper::AbandonTask()
{
    if (std::exchange(m_isEndDue, false)) {
        StopTask();
        RestoreEarlierResults();
    }
}

void KrAutoReframeHelper::RestoreEarlierResults()
{
    if (!m_earlier) {
        return;
    }
    m_results.swap(m_earlier->results);
    m_keyFrames.swap(m_earlier->keyFrames);
    m_earlier.reset();
    m_keyFrameLists.Rebuild(m_keyFrames);
    if (m_keyFrameHelper != nullptr) {
        m_keyFrameHelper->setKeyFrames(m_keyFrameLists.Current());
    }
}

void KrAutoReframeHelper::MarkCanceled()
{
    const std::lock_guard<QBasicMutex> lock(Guard());
    m_canceled = true;
}

void KrAutoReframeHelper::WaitForTask()
{
    if (m_watcher->isRunning()) {
        m_watcher->waitForFinished();
    }
    const std::lock_guard<QBasicMutex> lock(Guard());
}

void KrAutoReframeHelper::StopTask()
{
    if (m_watcher->isRunning()) {
        MarkCanceled();
        m_watcher->cancel();
    }
    WaitForTask();
}

void KrAutoReframeHelper::HandleTaskFinished()
{
    if (!std::exchange(m_isEndDue, false)) {
        return;
    }
    WaitForTask();
    if (m_watcher->isCanceled()) {
        RestoreEarlierResults();
        Q_EMIT sigApplyFinished(false);
        return;
    }
    m_earlier.reset();
    if (m_editsSurvive) {
        ReapplyEdits();
    } else {
        m_editPoints.clear();
        m_segments.clear();
        m_undoStack->clear();
    }
    RebuildDisplayResults();
    Q_EMIT sigApplyFinished(true);
}

bool KrAutoReframeHelper::IsTaskCanceled()
{
    const std::unique_lock<QBasicMutex> lock(Guard(), std::try_to_lock);
    return lock.owns_lock() && m_canceled;
}

void KrAutoReframeHelper::RunKeyFrameTask(IKxCropPanZoomKeyFrameHelper* target,
                                          const QList<IKxAutoReframeResult>& results)
{
    if (target == nullptr) {
        return;
    }
    KeyFrameMap keyFrames;
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
    target->setKeyFrames(StoreTaskResults(results, &keyFrames));
}

QList<KxCropPanZoomKeyFrameParam> KrAutoReframeHelper::StoreTaskResults(const QList<IKxAutoReframeResult>& results,
                                                                        KeyFrameMap* keyFrames)
{
    KrKeyFrameLists lists;
    lists.Rebuild(*keyFrames);
    const std::unique_lock<QBasicMutex> lock(Guard(), std::try_to_lock);
    if (lock.owns_lock()) {
        m_results = results;
        m_keyFrames.swap(*keyFrames);
        std::swap(m_keyFrameLists, lists);
    }
    return m_keyFrameLists.Current();
}
