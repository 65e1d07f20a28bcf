#include <KxModel/KxStreamInfo.h>

#include <limits>

namespace
{

int ClampToInt(qint64 value)
{
    return static_cast<int>(qBound<qint64>(0, value, std::numeric_limits<int>::max()));
}

} // namespace

KxStreamInfo::KxStreamInfo(std::shared_ptr<const KxMediaFacts> facts)
    : m_facts(std::move(facts))
{
}

KxStreamInfo::~KxStreamInfo() = default;

bool KxStreamInfo::hasVideoStream() const
{
    return m_facts->video.has_value();
}

bool KxStreamInfo::hasAudioStream() const
{
    return !m_facts->audio.isEmpty();
}

qint64 KxStreamInfo::frameCount() const
{
    return m_facts->video ? m_facts->video->frameCount : 0;
}

KxRational KxStreamInfo::frameRate() const
{
    return m_facts->video ? m_facts->video->frameRate : KxRational{};
}

QSize KxStreamInfo::resolution() const
{
    return m_facts->video ? m_facts->video->resolution : QSize();
}

int KxStreamInfo::bitRate() const
{
    return m_facts->video ? ClampToInt(m_facts->video->bitRate) : 0;
}

int KxStreamInfo::bitRate(int stream) const
{
    return stream >= 0 && stream < m_facts->audio.size() ? ClampToInt(m_facts->audio.at(stream).bitRate) : 0;
}
