#include <KxModel/KxFollowTracks.h>

#include <KxModel/KxCacheFolder.h>
#include <KxModel/KxChoicesFormat.h>
#include <KxModel/KxFollowTrackFormat.h>

#include <QCryptographicHash>

#include <algorithm>

namespace
{

QByteArray NameOf(const QByteArray& key, const KxSubjectChoice& choice)
{
    return key + '-' + QCryptographicHash::hash(KxChoicesFormat::Write({choice}), QCryptographicHash::Sha256).toHex();
}

} // namespace

KxFollowTracks::KxFollowTracks(std::shared_ptr<const KxCacheFolder> folder)
    : m_folder(std::move(folder))
{
}

KxFollowTracks::Known KxFollowTracks::Find(const QByteArray& key, const KxSubjectChoice& choice)
{
    if (key.isEmpty()) {
        return nullptr;
    }
    const Known known = FindInMemory(key, choice);
    return known || !m_folder ? known : FindOnDisk(key, choice);
}

KxFollowTracks::Known KxFollowTracks::FindInMemory(const QByteArray& key, const KxSubjectChoice& choice)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), [&](const Kept& candidate) {
        return candidate.key == key && candidate.choice == choice;
    });
    if (kept == m_kept.end()) {
        return nullptr;
    }
    m_kept.splice(m_kept.begin(), m_kept, kept);
    return m_kept.front().track;
}

KxFollowTracks::Known KxFollowTracks::FindOnDisk(const QByteArray& key, const KxSubjectChoice& choice)
{
    const QByteArray name = NameOf(key, choice);
    const std::optional<QByteArray> bytes = m_folder->Read(KxCacheFolder::Kind::Track, name);
    if (!bytes) {
        return nullptr;
    }
    std::optional<KxFollowTrack> read = KxFollowTrackFormat::Read(*bytes);
    if (!read) {
        m_folder->Remove(KxCacheFolder::Kind::Track, name);
        return nullptr;
    }
    return KeepInMemory(key, choice, std::move(*read));
}

KxFollowTracks::Known KxFollowTracks::KeepInMemory(const QByteArray& key, const KxSubjectChoice& choice,
                                                   KxFollowTrack track)
{
    const auto known = std::make_shared<const KxFollowTrack>(std::move(track));
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_kept.push_front({key, choice, known});
    if (m_kept.size() > MostKept) {
        m_kept.pop_back();
    }
    return known;
}

void KxFollowTracks::Add(const QByteArray& key, const KxSubjectChoice& choice, const KxFollowTrack& track)
{
    KeepInMemory(key, choice, track);
    if (m_folder && !key.isEmpty()) {
        m_folder->Write(KxCacheFolder::Kind::Track, NameOf(key, choice), KxFollowTrackFormat::Write(track));
    }
}
