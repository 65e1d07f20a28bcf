#include <KrAutoReframe/Engine/RemoveCropKeyFrameCommand.h>

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <tuple>

RemoveCropKeyFrameCommand::RemoveCropKeyFrameCommand(uint frame, KrAutoReframeHelper* helper)
    : m_frame(frame)
    , m_helper(helper)
{
}

RemoveCropKeyFrameCommand::~RemoveCropKeyFrameCommand() = default;

void RemoveCropKeyFrameCommand::undo()
{
    m_savedSegments.Revert(&m_helper->m_segments);
    m_helper->m_editPoints.remove(m_frame);
    m_helper->m_editPoints.insert(m_savedEditPoints);
    m_helper->RestoreRange(m_from, m_to);
}

void RemoveCropKeyFrameCommand::redo()
{
    const QList<KrEditSegment> segments = m_helper->m_segments;
    m_savedEditPoints.clear();
    if (m_helper->m_editPoints.contains(m_frame)) {
        m_savedEditPoints.insert(m_frame, m_helper->m_editPoints.value(m_frame));
    }
    std::tie(m_from, m_to) = m_helper->DoRemoveKeyFrame(m_frame);
    m_savedSegments = KrSegmentChange::Between(segments, m_helper->m_segments);
}
