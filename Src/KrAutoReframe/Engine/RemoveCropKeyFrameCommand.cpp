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
    m_helper->m_segments = m_savedSegments;
    m_helper->m_editPoints = m_savedEditPoints;
    m_helper->RestoreRange(m_from, m_to);
}

void RemoveCropKeyFrameCommand::redo()
{
    m_savedSegments = m_helper->m_segments;
    m_savedEditPoints = m_helper->m_editPoints;
    std::tie(m_from, m_to) = m_helper->DoRemoveKeyFrame(m_frame);
}
