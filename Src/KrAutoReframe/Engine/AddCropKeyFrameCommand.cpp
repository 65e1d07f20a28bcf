#include <KrAutoReframe/Engine/AddCropKeyFrameCommand.h>

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <tuple>

AddCropKeyFrameCommand::AddCropKeyFrameCommand(uint frame, const QRectF& rect, KrAutoReframeHelper* helper)
    : m_frame(frame)
    , m_rect(rect)
    , m_helper(helper)
{
}

AddCropKeyFrameCommand::~AddCropKeyFrameCommand() = default;

void AddCropKeyFrameCommand::undo()
{
    m_savedSegments.Revert(&m_helper->m_segments);
    m_helper->m_editPoints.remove(m_frame);
    m_helper->m_editPoints.insert(m_savedEditPoints);
    m_helper->RestoreRange(m_from, m_to);
}

void AddCropKeyFrameCommand::redo()
{
    const QList<KrEditSegment> segments = m_helper->m_segments;
    m_savedEditPoints.clear();
    if (m_helper->m_editPoints.contains(m_frame)) {
        m_savedEditPoints.insert(m_frame, m_helper->m_editPoints.value(m_frame));
    }
    std::tie(m_from, m_to) = m_helper->DoAddKeyFrame(m_frame, m_rect);
    m_savedSegments = KrSegmentChange::Between(segments, m_helper->m_segments);
}
