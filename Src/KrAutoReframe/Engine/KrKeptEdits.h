#pragma once

#include <KrAutoReframe/KrAutoReframeExtensions.h>
#include <KxModel/IKxAutoReframePictures.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QRectF>

#include <optional>

/// Edit points with their pictures, and those whose pictures are not in this cut of the video. A plain record.
struct KrKeptEdits {
    QMap<uint, QRectF> points;
    /// By frame of a point; missing where they are unknown.
    QMap<uint, QByteArray> pictures;
    QList<KrUnplacedEdit> unplaced;

    /// A video of this many frames: points after its end become unplaced.
    void LimitTo(uint frameCount);

    /// What IKxAutoReframePictures::FindFrames is asked for: the points, then those that are unplaced.
    QList<KxDescribedFrame> Described() const;
    /// Moves each point to its frame in `found`, which is the answer to Described():
    /// 1. a point that moves loses its pictures, which belong to the earlier cut;
    /// 2. one that is not found becomes unplaced, and one that is found again a point;
    /// 3. of two that meet in one frame, the first is there and the other is unplaced.
    /// Returns the number of points that moved or were found again.
    int MoveTo(const QList<std::optional<qint64>>& found);

    bool operator==(const KrKeptEdits& other) const
    {
        return points == other.points && pictures == other.pictures && unplaced == other.unplaced;
    }
};
