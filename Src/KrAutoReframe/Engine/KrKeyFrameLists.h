#pragma once

#include <KxModel/KxCropPanZoomKeyFrameParam.h>

#include <QList>
#include <QMap>

#include <algorithm>

/// A range of frames, both ends included; empty while `last` is below `first`.
struct KrFrameRange {
    qint64 first = 0;
    qint64 last = -1;

    bool IsEmpty() const { return last < first; }
    /// Extends the range so that it covers `from` to `to`.
    void Cover(qint64 from, qint64 to)
    {
        first = IsEmpty() ? from : std::min(first, from);
        last = std::max(last, to);
    }
};

/// The keyframes of a clip as the list that the host takes, updated at a cost that depends only on what an edit
/// changed. The host shares the storage of the last list, and writing to a shared list copies all of it. So there are
/// two lists: each update writes to the one that the host has released.
class KrKeyFrameLists
{
public:
    using KeyFrame = KxCropPanZoomKeyFrameParam;
    /// By frame.
    using KeyFrameMap = QMap<qint64, KeyFrame>;

    /// The list of the last update.
    const QList<KeyFrame>& Current() const { return m_current; }

    /// Takes over all of `keyFrames`.
    void Rebuild(const KeyFrameMap& keyFrames);
    /// Takes over the keyframes in `changed`; the others are those of the last update.
    void Update(const KeyFrameMap& keyFrames, const KrFrameRange& changed);

private:
    QList<KeyFrame> m_current;
    QList<KeyFrame> m_spare;
    /// Where the spare list differs from the current one.
    KrFrameRange m_spareChanges;
};
