#include <Apps/Reframe/ReframeJob.h>

#include <Apps/CropTracks/CropRenderSettings.h>
#include <Apps/CropTracks/CroppedMedia.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KxEditList/KxEditList.h>
#include <KxModel/KxAutoReframeService.h>
#include <KxSubject/KxSubjectFindings.h>

#include <QFileInfo>

KxCroppedClip ReframeJob::CroppedClip(const QSize& outputSize) const
{
    KxCroppedClip clip = CroppedMedia::Clip(*m_media, Helper().GetDisplayResults(), outputSize, m_otherShapes);
    const std::shared_ptr<const KxSubjectFindings> findings = KxAutoReframeService::Instance().LastFindings();
    if (!m_track && findings != nullptr) {
        for (const KxSubjectFindings::Shot& shot : findings->shots) {
            clip.shotStarts.push_back(shot.first);
        }
    }
    return clip;
}

ReframeJob::Ended ReframeJob::WriteEditLists()
{
    if (m_options.editLists.isEmpty()) {
        return std::nullopt;
    }
    const KxResult<QSize> size = CropRenderSettings::Size(*m_media, ShapeOfResult(), m_options.video.size);
    if (!size) {
        return FailBecause(size.Message());
    }
    const KxCroppedClip clip = CroppedClip(*size);
    for (const QString& named : m_options.editLists) {
        const QString path = m_targets->EditList(named);
        const QString suffix = QFileInfo(path).suffix();
        if (const Ended ended = WriteFile(path, KxEditList::Text(clip, suffix), suffix.toLower())) {
            return ended;
        }
    }
    return std::nullopt;
}
