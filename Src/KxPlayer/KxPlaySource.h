#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>
#include <KxModel/KxCropPanZoomKeyFrameParam.h>

#include <QList>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

class IKxTimeline;

/// What a timeline plays, as it was at one moment. Never changes once it is shared; any thread.
struct KXPLAYER_API KxPlaySource {
    QString path;
    KxRational frameRate{25, 1};
    int frameCount = 0;
    /// Of pictures that are not cropped.
    QSize resolution;
    /// In ascending order; none for a timeline that shows whole pictures.
    QList<KxCropPanZoomKeyFrameParam> cropKeyFrames;
    /// Counts the file's audio streams from 0; nothing without sound.
    std::optional<int> audioStream;

    /// Null for a timeline that holds no video.
    static std::shared_ptr<const KxPlaySource> Of(const IKxTimeline& timeline);

    int LastFrame() const { return frameCount - 1; }
    /// When `frame` is due, microseconds after frame 0.
    qint64 TimeUs(qint64 frame) const;
    /// The frame that shows at `timeUs`; may lie past the end.
    int FrameAt(qint64 timeUs) const;

    /// The part of the picture that shows at `frame`, fractions inside the picture; nothing where the whole picture
    /// shows.
    std::optional<QRectF> CropAt(int frame) const;
    /// Width to height of what shows at `frame` of pictures of that resolution.
    QSizeF ShapeAt(int frame, const QSize& picture) const;
};
