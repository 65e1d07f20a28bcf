#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <QImage>
#include <QRectF>
#include <QSize>

#include <functional>
#include <memory>
#include <vector>

class IKxTimeline;

/// What is rendered, as values: the thread that renders never touches a timeline. Copies share the crops.
struct KXRENDER_API KxRenderSource {
    QString path;
    /// Counts the file's audio streams from 0; nothing is the one that plays.
    std::optional<int> audioStream;
    /// The rectangle of each frame, fractions of the picture, frame 0 first; the last one holds for what follows. Null
    /// or empty where nothing is cropped on purpose.
    std::shared_ptr<const std::vector<QRectF>> crops;
    /// Draws on a picture of the source that is whole and as large as the result; called on a thread of the rendering.
    /// Where it is set nothing is cut.
    std::function<void(QImage& picture, qint64 frame)> overlay;

    /// Takes the first clip of `timeline` and what its crop keyframes say at every frame. Fails with an error message
    /// for a timeline without a clip that stands for a file. User-interface thread.
    static KxResult<KxRenderSource> FromTimeline(IKxTimeline& timeline);

    /// The file's name without its folder, as messages call it.
    QString Name() const;

    /// The rectangle of `frame`. Without crops the largest part of a picture of size `picture` around its middle that
    /// has the shape of `target`, so that nothing is distorted.
    QRectF CropAt(qint64 frame, const QSize& picture, const QSize& target) const;
};
