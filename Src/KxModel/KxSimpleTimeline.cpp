#include <KxModel/KxSimpleTimeline.h>

#include <KxModel/KxVBLMODEL.h>

#include <set>

namespace
{

/// The simple timelines that belong to the host and were not released yet.
std::set<IKxTimeline*>& Remaining()
{
    static std::set<IKxTimeline*> remaining;
    return remaining;
}

} // namespace

KxSimpleTimeline::KxSimpleTimeline(std::unique_ptr<KxClip> clip)
    : m_clip(std::move(clip))
{
    const KxStreamInfo& info = m_clip->StreamInfo();
    m_settings.resolution = info.resolution();
    m_settings.frameRateType = KxVBLMODEL::toFrameRateType(info.frameRate());
    m_settings.aspectRatioType = KxVBLMODEL::toAspectRatioType(info.resolution());
}

KxSimpleTimeline::~KxSimpleTimeline() = default;

std::unique_ptr<KxSimpleTimeline> KxSimpleTimeline::Copy(KxClip::KeyFrames keyFrames) const
{
    auto copy = std::make_unique<KxSimpleTimeline>(m_clip->Copy(keyFrames));
    copy->m_settings = m_settings;
    return copy;
}

QList<IKxClip*> KxSimpleTimeline::clips() const
{
    return {m_clip.get()};
}

KxProjectSettings KxSimpleTimeline::projectSettings() const
{
    return m_settings;
}

void KxSimpleTimeline::setProjectSettings(const KxProjectSettings& settings)
{
    m_settings = settings;
}

qint64 KxSimpleTimeline::duration() const
{
    return m_clip->StreamInfo().frameCount();
}

IKxTimeline* IKxTimeline::createSimpleTimeline(IKxClip* clip)
{
    const auto* const own = dynamic_cast<const KxClip*>(clip);
    if (own == nullptr) {
        return nullptr;
    }
    auto* const timeline = new KxSimpleTimeline(own->Copy(KxClip::KeyFrames::Copied));
    Remaining().insert(timeline);
    return timeline;
}

IKxTimeline* IKxTimeline::clone(IKxTimeline* timeline, bool shareKeyFrames)
{
    const auto* const own = dynamic_cast<const KxSimpleTimeline*>(timeline);
    const auto keyFrames = shareKeyFrames ? KxClip::KeyFrames::Shared : KxClip::KeyFrames::Copied;
    return own != nullptr ? own->Copy(keyFrames).release() : nullptr;
}

void IKxTimeline::releaseInstance(IKxTimeline* timeline)
{
    Remaining().erase(timeline);
    delete timeline;
}

void KxSimpleTimeline::ReleaseAll()
{
    while (!Remaining().empty()) {
        releaseInstance(*Remaining().begin());
    }
}
