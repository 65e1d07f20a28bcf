#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <KrAutoReframe/Engine/KrEditPlacement.h>

#include <KxModel/IKxKeyFrameHelper.h>

#include <algorithm>
#include <utility>

KrAutoReframeHelper::FrameRange KrAutoReframeHelper::DoAddKeyFrame(const uint& frame, const QRectF& rect)
{
    if (m_frameCount == 0) {
        return {NoFrame, NoFrame};
    }
    m_editPoints[frame] = rect;
    const qint64 radius = static_cast<qint64>(m_frameRate);
    const qint64 low = std::max<qint64>(0, frame - radius);
    const qint64 high = std::min<qint64>(m_frameCount - 1, frame + radius);
    if (high < low) {
        return {NoFrame, NoFrame};
    }
    KrEditSegment segment{static_cast<uint>(low), static_cast<int>(high - low), {frame}};
    for (int index = 0; index < m_segments.size(); ++index) {
        if (segment.Merge(m_segments.at(index))) {
            m_segments.removeAt(index);
        }
    }
    m_segments.append(segment);
    std::stable_sort(m_segments.begin(), m_segments.end(),
                     [](const KrEditSegment& a, const KrEditSegment& b) { return a.start < b.start; });
    ApplyEditRange(segment.start, segment.End(), segment);
    return {segment.start, segment.End()};
}

KrAutoReframeHelper::FrameRange KrAutoReframeHelper::DoRemoveKeyFrame(const uint& frame)
{
    for (int index = 0; index < m_segments.size(); ++index) {
        const FrameRange oldRange(m_segments.at(index).start, m_segments.at(index).End());
        KrEditSegment segment = m_segments.at(index);
        if (!segment.RemovePoint(frame)) {
            continue;
        }
        m_editPoints.remove(frame);
        if (segment.points.empty()) {
            m_segments.removeAt(index);
            segment = KrEditSegment();
        } else {
            m_segments[index] = segment;
        }
        ApplyEditRange(oldRange.first, oldRange.second, segment);
        return oldRange;
    }
    return {NoFrame, NoFrame};
}

void KrAutoReframeHelper::RestoreRange(uint from, uint to)
{
    WaitForTask();
    if (from > to || !AreCountsValid(to)) {
        return;
    }
    uint rest = from;
    m_suspendFlush = true;
    for (const KrEditSegment& segment : qAsConst(m_segments)) {
        if (segment.start >= from && segment.End() <= to) {
            rest = segment.End();
            ApplyEditRange(from, rest, segment);
        }
    }
    m_suspendFlush = false;
    ApplyEditRange(rest, to, KrEditSegment());
}

bool KrAutoReframeHelper::AreCountsValid(uint to) const
{
    return m_frameCount > 0 && m_frameCount <= m_results.size() && to < static_cast<uint>(m_frameCount);
}

void KrAutoReframeHelper::SetKeyFrame(qint64 frame, const QRectF& rect)
{
    KxCropPanZoomKeyFrameParam keyFrame;
    keyFrame.frame = frame;
    keyFrame.kind = KxCropPanZoomKeyFrameParam::Linear;
    keyFrame.cropRect = rect;
    m_keyFrames.insert(frame, keyFrame);
}

void KrAutoReframeHelper::FillFromResults(uint from, uint to)
{
    if (from > to || !AreCountsValid(to)) {
        return;
    }
    for (uint frame = from; frame <= to; ++frame) {
        SetKeyFrame(frame, m_results.at(static_cast<int>(frame)).cropRect());
    }
}

void KrAutoReframeHelper::ApplyEditRange(uint from, uint to, const KrEditSegment& segment)
{
    WaitForTask();
    m_earlier.reset();
    if (from > to || !AreCountsValid(to) || m_keyFrameHelper == nullptr) {
        return;
    }
    if (segment.points.empty()) {
        FillFromResults(from, to);
    } else {
        RemoveKeyFramesIn(segment);
        FillFromResults(from, segment.start);
        FillFromResults(segment.End(), to);
        for (const uint point : segment.points) {
            SetKeyFrame(point, EditRect(point));
        }
    }
    m_changedFrames.Cover(from, to);
    if (!m_suspendFlush) {
        FlushChanges();
    }
}

QRectF KrAutoReframeHelper::EditRect(uint frame) const
{
    const QRectF placed = m_editPoints.value(frame);
    if (!m_editsSurvive) {
        return placed;
    }
    return KrEditPlacement::InSize(placed, m_results.at(static_cast<int>(frame)).cropRect().size());
}

void KrAutoReframeHelper::ReapplyEdits()
{
    m_suspendFlush = true;
    for (const KrEditSegment& segment : qAsConst(m_segments)) {
        ApplyEditRange(segment.start, segment.End(), segment);
    }
    m_suspendFlush = false;
    if (!m_changedFrames.IsEmpty()) {
        FlushChanges();
    }
}

void KrAutoReframeHelper::RemoveKeyFramesIn(const KrEditSegment& segment)
{
    if (segment.End() >= static_cast<uint>(m_frameCount)) {
        return;
    }
    auto keyFrame = m_keyFrames.lowerBound(segment.start);
    while (keyFrame != m_keyFrames.end() && keyFrame.key() <= segment.End()) {
        keyFrame = m_keyFrames.erase(keyFrame);
    }
}

void KrAutoReframeHelper::FlushChanges()
{
    const KrFrameRange changed = std::exchange(m_changedFrames, KrFrameRange());
    m_keyFrameLists.Update(m_keyFrames, changed);
    m_keyFrameHelper->setKeyFrames(m_keyFrameLists.Current());
    if (m_isDisplayCurrent) {
        UpdateDisplayResults(AffectedFrames(changed));
    } else {
        RebuildDisplayResults();
    }
}

void KrAutoReframeHelper::RebuildDisplayResults()
{
    m_displayResults = m_results;
    m_isDisplayCurrent = true;
    if (m_keyFrameHelper == nullptr) {
        return;
    }
    for (const KrEditSegment& segment : qAsConst(m_segments)) {
        ShowSegment(segment, {0, m_frameCount - 1});
    }
}

void KrAutoReframeHelper::ShowPreliminary(const QList<IKxAutoReframeResult>& rectangles)
{
    if (!m_isDisplayCurrent || m_keyFrameHelper == nullptr) {
        return;
    }
    KrFrameRange changed;
    for (const IKxAutoReframeResult& rectangle : rectangles) {
        if (rectangle.frame() >= 0 && rectangle.frame() < m_displayResults.size()) {
            m_displayResults[static_cast<int>(rectangle.frame())].setCropRect(rectangle.cropRect());
            changed.Cover(rectangle.frame(), rectangle.frame());
        }
    }
    for (const KrEditSegment& segment : qAsConst(m_segments)) {
        ShowSegment(segment, changed);
    }
}

void KrAutoReframeHelper::ShowResultsAgain()
{
    WaitForTask();
    RebuildDisplayResults();
}

KrFrameRange KrAutoReframeHelper::AffectedFrames(const KrFrameRange& changed) const
{
    const auto from = m_keyFrames.lowerBound(changed.first);
    const auto after = m_keyFrames.upperBound(changed.last);
    return {from != m_keyFrames.constBegin() ? std::prev(from).key() + 1 : 0,
            after != m_keyFrames.constEnd() ? after.key() - 1 : m_frameCount - 1};
}

void KrAutoReframeHelper::UpdateDisplayResults(const KrFrameRange& changed)
{
    for (qint64 frame = changed.first; frame <= changed.last; ++frame) {
        const int index = static_cast<int>(frame);
        m_displayResults[index] = m_results.at(index);
    }
    for (const KrEditSegment& segment : qAsConst(m_segments)) {
        ShowSegment(segment, changed);
    }
}

void KrAutoReframeHelper::ShowSegment(const KrEditSegment& segment, const KrFrameRange& frames)
{
    const qint64 first = std::max<qint64>(segment.start, frames.first);
    const qint64 last = std::min<qint64>(segment.End(), frames.last);
    auto keyFrame = qAsConst(m_keyFrames).lowerBound(first);
    for (qint64 frame = first; frame <= last; ++frame) {
        KxCropPanZoomKeyFrameParam shown;
        if (keyFrame != m_keyFrames.constEnd() && keyFrame.key() == frame) {
            shown = keyFrame.value();
            ++keyFrame;
        } else {
            m_keyFrameHelper->interpolatedParam(frame, &shown);
        }
        m_displayResults[static_cast<int>(frame)].setCropRect(shown.cropRect);
    }
}
