#include <KxModel/KxFollowTracks.h>

#include <algorithm>

KxFollowTracks::Known KxFollowTracks::Find(const QByteArray& key, const KxSubjectChoice& choice)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& candidate) {
        return candidate.key == key && candidate.choice == choice;
    });
    if (kept == m_kept.end() || key.isEmpty()) {
        return nullptr;
    }
    m_kept.splice(m_kept.begin(), m_kept, kept);
    return m_kept.front().track;
}

void KxFollowTracks::Add(const QByteArray& key, const KxSubjectChoice& choice, const KxFollowTrack& track)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_kept.push_front({key, choice, std::make_shared<const KxFollowTrack>(track)});
    if (m_kept.size() > MostKept) {
        m_kept.pop_back();
    }
}
