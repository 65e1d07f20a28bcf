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
    m_helper->m_segments = m_savedSegments;
    m_helper->m_editPoints = m_savedEditPoints;
    m_helper->RestoreRange(m_from, m_to);
}

void AddCropKeyFrameCommand::redo()
{
    m_savedSegments = m_helper->m_segments;
    m_savedEditPoints = m_helper->m_editPoints;
    std::tie(m_from, m_to) = m_helper->DoAddKeyFrame(m_frame, m_rect);
}
