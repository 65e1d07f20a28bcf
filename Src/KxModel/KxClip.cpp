#include <KxModel/KxClip.h>

KxClip::KxClip(std::shared_ptr<const KxMediaFacts> facts)
    : m_facts(std::move(facts))
    , m_info(m_facts)
    , m_cropKeyFrames(std::make_shared<KxCropKeyFrames>())
{
}

KxClip::~KxClip() = default;

std::unique_ptr<KxClip> KxClip::Copy(KeyFrames keyFrames) const
{
    auto copy = std::make_unique<KxClip>(m_facts);
    if (keyFrames == KeyFrames::Shared) {
        copy->m_cropKeyFrames = m_cropKeyFrames;
    } else {
        copy->m_cropKeyFrames->setKeyFrames(m_cropKeyFrames->KeyFrames());
    }
    return copy;
}

QString KxClip::filePath() const
{
    return m_facts->path;
}

const IKxMediaInfo* KxClip::mediaInfo() const
{
    return static_cast<const IKxVideoMediaInfo*>(&m_info);
}

IKxKeyFrameHelper* KxClip::keyFrameHelper(int kind)
{
    return kind == IKxKeyFrameHelper::CropPanZoom ? m_cropKeyFrames.get() : nullptr;
}
