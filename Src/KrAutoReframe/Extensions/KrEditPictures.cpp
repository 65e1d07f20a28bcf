#include <KrAutoReframe/Extensions/KrEditPictures.h>

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <KxModel/IKxAutoReframePictures.h>
#include <KxModel/IKxAutoReframeService.h>

#include <utility>

namespace
{

/// Null if the host's service does not offer it.
IKxAutoReframePictures* ServicePictures()
{
    return dynamic_cast<IKxAutoReframePictures*>(getAutoReframeService());
}

} // namespace

KrEditPictures::KrEditPictures(KrAutoReframeHelper& helper)
    : m_helper(helper)
{
}

void KrEditPictures::Restore(const KrAutoReframeState& state)
{
    m_message.clear();
    m_edits = {state.editPoints, state.editPictures, state.unplacedEdits};
    m_edits.LimitTo(static_cast<uint>(m_helper.GetDuration()));
    m_helper.RestoreEditPoints(m_edits.points);
}

bool KrEditPictures::Place(const QString& path)
{
    const IKxAutoReframePictures* const pictures = ServicePictures();
    if (pictures == nullptr) {
        return false;
    }
    m_edits.points = m_helper.GetEditPoints();
    const int moved = m_edits.MoveTo(pictures->FindFrames(path, m_edits.Described()));
    const int missing = m_edits.unplaced.size();
    m_message = missing > 0 ? tr("%n edit points are kept, but not in this cut of the video", nullptr, missing)
                : moved > 0 ? tr("%n edit points were moved to where their pictures are", nullptr, moved)
                            : QString();
    const bool hasChanged = m_edits.points != m_helper.GetEditPoints();
    if (hasChanged) {
        m_helper.ReplaceEditPoints(m_edits.points);
    }
    return hasChanged;
}

void KrEditPictures::Describe(const QString& path)
{
    const QMap<uint, QByteArray> known = std::exchange(m_edits.pictures, {});
    m_edits.points = m_helper.GetEditPoints();
    QList<qint64> unknown;
    for (auto point = m_edits.points.cbegin(); point != m_edits.points.cend(); ++point) {
        if (known.contains(point.key())) {
            m_edits.pictures.insert(point.key(), known.value(point.key()));
        } else {
            unknown += point.key();
        }
    }
    const IKxAutoReframePictures* const pictures = ServicePictures();
    if (pictures == nullptr || unknown.isEmpty()) {
        return;
    }
    const QList<QByteArray> texts = pictures->DescribeFrames(path, unknown);
    for (int i = 0; i < unknown.size(); ++i) {
        if (!texts.value(i).isEmpty()) {
            m_edits.pictures.insert(static_cast<uint>(unknown.at(i)), texts.at(i));
        }
    }
}
