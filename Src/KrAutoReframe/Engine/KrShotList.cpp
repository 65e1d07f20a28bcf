#include <KrAutoReframe/Engine/KrShotList.h>

#include <algorithm>

KrShotList::KrShotList(const QList<KxAutoReframeShot>& shots, const QList<uint>& seen)
    : m_shots(shots)
    , m_seen(seen.cbegin(), seen.cend())
{
}

int KrShotList::IndexAt(qint64 frame) const
{
    const auto after = std::upper_bound(m_shots.cbegin(), m_shots.cend(), frame,
                                        [](qint64 value, const KxAutoReframeShot& shot) { return value < shot.first; });
    return static_cast<int>(after - m_shots.cbegin()) - 1;
}

int KrShotList::NextDoubtful(qint64 frame) const
{
    for (int index = IndexAt(frame) + 1; index < m_shots.size(); ++index) {
        if (IsDoubtful(index)) {
            return index;
        }
    }
    return -1;
}

int KrShotList::PreviousDoubtful(qint64 frame) const
{
    int index = IndexAt(frame) - 1;
    while (index >= 0 && !IsDoubtful(index)) {
        --index;
    }
    return std::max(index, -1);
}

int KrShotList::FirstToLookAt() const
{
    for (int index = 0; index < m_shots.size(); ++index) {
        if (IsDoubtful(index) && !IsSeen(index)) {
            return index;
        }
    }
    return -1;
}

bool KrShotList::IsDoubtful(int index) const
{
    return index >= 0 && index < m_shots.size() && m_shots.at(index).doubt != KxAutoReframeDoubt::None;
}

bool KrShotList::IsSeen(int index) const
{
    return IsDoubtful(index) && m_seen.count(static_cast<uint>(m_shots.at(index).first)) > 0;
}

bool KrShotList::MarkSeen(int index)
{
    return IsDoubtful(index) && m_seen.insert(static_cast<uint>(m_shots.at(index).first)).second;
}

int KrShotList::CountDoubtful() const
{
    return static_cast<int>(std::count_if(m_shots.cbegin(), m_shots.cend(), [](const KxAutoReframeShot& shot) {
        return shot.doubt != KxAutoReframeDoubt::None;
    }));
}

int KrShotList::CountToLookAt() const
{
    int count = 0;
    for (int index = 0; index < m_shots.size(); ++index) {
        count += IsDoubtful(index) && !IsSeen(index) ? 1 : 0;
    }
    return count;
}

QList<uint> KrShotList::Seen() const
{
    return {m_seen.cbegin(), m_seen.cend()};
}
