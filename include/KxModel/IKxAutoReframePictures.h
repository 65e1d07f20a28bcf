#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// A frame of a video, and what the pictures around it look like.
struct KxDescribedFrame {
    qint64 frame = 0;
    /// Text as IKxAutoReframePictures::DescribeFrames writes it; empty: unknown.
    QByteArray pictures;
};

/// What a host's auto-reframe service may offer beside IKxAutoReframeService: it finds frames again in a file that was
/// cut differently, as one that was trimmed at its start. A service that does so derives from both classes: clients
/// find this one by dynamic_cast. Defined in this header alone, so that a host without it has nothing to add. Any
/// thread.
class IKxAutoReframePictures
{
public:
    /// What the pictures around each of `frames` look like, as text to be stored. Empty texts unless the last task was
    /// for the file `path` and succeeded.
    virtual QList<QByteArray> DescribeFrames(const QString& path, const QList<qint64>& frames) const = 0;

    /// Where each of `frames` is in the file `path` now; nothing if its pictures are not in it. A frame whose pictures
    /// are unknown stays where it is; so do all unless the last task was for that file and succeeded.
    virtual QList<std::optional<qint64>> FindFrames(const QString& path,
                                                    const QList<KxDescribedFrame>& frames) const = 0;

protected:
    virtual ~IKxAutoReframePictures() = default;
};
