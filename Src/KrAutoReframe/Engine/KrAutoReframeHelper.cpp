#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <KrAutoReframe/Engine/AddCropKeyFrameCommand.h>
#include <KrAutoReframe/Engine/RemoveCropKeyFrameCommand.h>

#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>

#include <QUndoStack>

#include <algorithm>
#include <limits>
#include <mutex>

KrAutoReframeHelper::KrAutoReframeHelper()
    : m_watcher(new QFutureWatcher<void>(this))
    , m_undoStack(new QUndoStack(this))
{
    connect(m_watcher, &QFutureWatcher<void>::canceled, this, &KrAutoReframeHelper::MarkCanceled);
    connect(m_watcher, &QFutureWatcher<void>::finished, this, &KrAutoReframeHelper::HandleTaskFinished);
    connect(m_undoStack, &QUndoStack::canUndoChanged, this,
            [this](bool canUndo) { Q_EMIT sigCanUndoRedo(canUndo, m_undoStack->canRedo()); });
    connect(m_undoStack, &QUndoStack::canRedoChanged, this,
            [this](bool canRedo) { Q_EMIT sigCanUndoRedo(m_undoStack->canUndo(), canRedo); });
}

KrAutoReframeHelper::~KrAutoReframeHelper()
{
    StopTask();
    IKxTimeline::releaseInstance(m_workTimeline);
}

void KrAutoReframeHelper::SetTimeline(IKxTimeline* timeline)
{
    if (timeline == nullptr) {
        return;
    }
    StopTask();
    m_isEndDue = false;
    m_earlier.reset();
    ReadClipFacts(*timeline);
    ResetWorkTimeline(timeline);
    m_sourceTimeline = timeline;
    m_results.clear();
    m_displayResults.clear();
    m_isDisplayCurrent = false;
    m_segments.clear();
    m_editPoints.clear();
    m_undoStack->clear();
    Q_EMIT sigOpenTimelineFinished();
}

void KrAutoReframeHelper::ReadClipFacts(const IKxTimeline& timeline)
{
    m_frameCount = 0;
    m_frameRate = 0.0f;
    const QList<IKxClip*> clips = timeline.clips();
    if (clips.isEmpty()) {
        return;
    }
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(clips.first()->mediaInfo());
    if (video == nullptr) {
        return;
    }
    m_frameCount = static_cast<int>(qBound<qint64>(0, video->frameCount(), std::numeric_limits<int>::max()));
    const KxRational rate = video->frameRate();
    if (rate.denominator > 0) {
        m_frameRate = static_cast<float>(static_cast<double>(rate.numerator) / rate.denominator);
    }
}

bool KrAutoReframeHelper::ResetWorkTimeline(IKxTimeline* timeline)
{
    IKxTimeline* const copy = IKxTimeline::clone(timeline, false);
    const QList<IKxClip*> clips = copy != nullptr ? copy->clips() : QList<IKxClip*>();
    if (clips.isEmpty()) {
        return false;
    }
    StopTask();
    m_keyFrameHelper =
        dynamic_cast<IKxCropPanZoomKeyFrameHelper*>(clips.first()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom));
    IKxTimeline::releaseInstance(m_workTimeline);
    m_workTimeline = copy;
    m_clip = clips.first();
    return true;
}

IKxTimeline* KrAutoReframeHelper::GetSourceTimeline() const
{
    return m_sourceTimeline;
}

IKxTimeline* KrAutoReframeHelper::GetWorkTimeline() const
{
    return m_workTimeline;
}

int KrAutoReframeHelper::GetDuration() const
{
    return m_frameCount;
}

bool KrAutoReframeHelper::AddKeyFrame(const uint& frame, const QRectF& rect)
{
    if (m_frameCount == 0) {
        return false;
    }
    m_undoStack->push(new AddCropKeyFrameCommand(std::min(frame, static_cast<uint>(m_frameCount - 1)), rect, this));
    return true;
}

bool KrAutoReframeHelper::RemoveKeyFrame(const uint& frame)
{
    if (m_frameCount == 0) {
        return false;
    }
    const uint editFrame = std::min(frame, static_cast<uint>(m_frameCount - 1));
    if (!m_editPoints.contains(editFrame)) {
        return false;
    }
    m_undoStack->push(new RemoveCropKeyFrameCommand(editFrame, this));
    return true;
}

bool KrAutoReframeHelper::Undo()
{
    if (!m_undoStack->canUndo()) {
        return false;
    }
    m_undoStack->undo();
    return true;
}

bool KrAutoReframeHelper::Redo()
{
    if (!m_undoStack->canRedo()) {
        return false;
    }
    m_undoStack->redo();
    return true;
}

void KrAutoReframeHelper::SetEditsSurvive(bool survive)
{
    m_editsSurvive = survive;
}

void KrAutoReframeHelper::RestoreEditPoints(const QMap<uint, QRectF>& points)
{
    for (auto point = points.cbegin(); point != points.cend(); ++point) {
        if (point.key() < static_cast<uint>(m_frameCount)) {
            DoAddKeyFrame(point.key(), point.value());
        }
    }
}

void KrAutoReframeHelper::ReplaceEditPoints(const QMap<uint, QRectF>& points)
{
    const QList<KrEditSegment> earlier = m_segments;
    m_segments.clear();
    m_editPoints.clear();
    for (const KrEditSegment& segment : earlier) {
        ApplyEditRange(segment.start, segment.End(), KrEditSegment());
    }
    RestoreEditPoints(points);
    m_undoStack->clear();
}

const QMap<uint, QRectF>& KrAutoReframeHelper::GetEditPoints() const
{
    return m_editPoints;
}

QUndoStack& KrAutoReframeHelper::GetUndoStack() const
{
    return *m_undoStack;
}

QList<uint> KrAutoReframeHelper::GetEditPointFrames() const
{
    return m_editPoints.keys();
}

bool KrAutoReframeHelper::IsEditFrame(const uint& frame) const
{
    return m_editPoints.contains(frame);
}

uint KrAutoReframeHelper::GetNextKeyFrame(const uint& frame) const
{
    if (m_frameCount == 0) {
        return NoFrame;
    }
    const auto next = m_editPoints.upperBound(std::min(frame, static_cast<uint>(m_frameCount - 1)));
    return next != m_editPoints.constEnd() ? next.key() : NoFrame;
}

uint KrAutoReframeHelper::GetPrevKeyFrame(const uint& frame) const
{
    if (m_frameCount == 0) {
        return NoFrame;
    }
    const auto notBefore = m_editPoints.lowerBound(std::min(frame, static_cast<uint>(m_frameCount - 1)));
    return notBefore != m_editPoints.constBegin() ? std::prev(notBefore).key() : NoFrame;
}

QList<IKxAutoReframeResult> KrAutoReframeHelper::GetResults() const
{
    const std::lock_guard<QBasicMutex> lock(Guard());
    return m_results;
}

const QList<IKxAutoReframeResult>& KrAutoReframeHelper::GetDisplayResults() const
{
    return m_displayResults;
}
