#pragma once

#include <KxModel/IKxAutoReframeShots.h>

#include <QList>

#include <set>

/// The shots of a video, and which of the doubtful ones the person has looked at. A value; its operations are pure. An
/// index of -1 means no shot.
class KrShotList
{
public:
    KrShotList() = default;
    /// `shots` in order and without gaps. `seen`: the first frames of shots that were looked at; those of other shots
    /// are kept.
    KrShotList(const QList<KxAutoReframeShot>& shots, const QList<uint>& seen);

    const QList<KxAutoReframeShot>& Shots() const { return m_shots; }
    int IndexAt(qint64 frame) const;
    /// The first doubtful shot after the one of `frame`, seen or not.
    int NextDoubtful(qint64 frame) const;
    /// The last doubtful shot before the one of `frame`, seen or not.
    int PreviousDoubtful(qint64 frame) const;

    /// The first doubtful shot that was not seen.
    int FirstToLookAt() const;

    bool IsDoubtful(int index) const;
    bool IsSeen(int index) const;
    /// False if nothing changes: the shot is not doubtful, or was seen.
    bool MarkSeen(int index);
    int CountDoubtful() const;
    /// Doubtful shots that were not seen.
    int CountToLookAt() const;
    /// First frames, ascending.
    QList<uint> Seen() const;

private:
    QList<KxAutoReframeShot> m_shots;
    std::set<uint> m_seen;
};
