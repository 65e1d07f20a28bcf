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

/// A snapshot of what a timeline plays. Never changes once it is shared; any thread.
struct KXPLAYER_API KxPlaySource {
    QString path;
    KxRational frameRate{25, 1};
    int frameCount = 0;
    /// Display size of pictures without a crop.
    QSize resolution;
    /// The shape of the result, in a timeline whose shape is not that of its clip; otherwise empty. Crops that do not
    /// have it are fitted into it (see KxFittedCutter).
    QSize result;
    /// In ascending order; empty for a timeline that shows whole pictures.
    QList<KxCropPanZoomKeyFrameParam> cropKeyFrames;
    /// Index among the file's audio streams, from 0; nothing without sound.
    std::optional<int> audioStream;

    /// Null for a timeline without video.
    static std::shared_ptr<const KxPlaySource> Of(const IKxTimeline& timeline);

    int LastFrame() const { return frameCount - 1; }
    /// The time of `frame`, microseconds after frame 0.
    qint64 TimeUs(qint64 frame) const;
    /// The frame that is shown at `timeUs`; may lie past the end.
    int FrameAt(qint64 timeUs) const;

    /// The part of the picture that is shown at `frame`, in fractions inside the picture; nothing if the whole picture
    /// is shown.
    std::optional<QRectF> CropAt(int frame) const;
    /// Whether what is shown at `frame` is fitted into `result`, for pictures of size `picture`.
    bool IsFittedAt(int frame, const QSize& picture) const;
    /// The aspect ratio of what is shown at `frame`, for pictures of size `picture`.
    QSizeF ShapeAt(int frame, const QSize& picture) const;
};
