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

/// What to render, as values: the rendering thread never touches a timeline. Copies share the crops.
struct KXRENDER_API KxRenderSource {
    QString path;
    /// Index of the audio stream, counted from 0; nothing selects the default stream.
    std::optional<int> audioStream;
    /// The crop of each frame, in fractions of the picture, frame 0 first; later frames have the last one. Null or
    /// empty: the central window of the target's shape.
    std::shared_ptr<const std::vector<QRectF>> crops;
    /// How a crop of another shape than the result is shown: stretched, or fitted, complete over its own blurred middle
    /// (see KxFittedCutter).
    enum class OtherShapes { Stretched, Fitted };
    OtherShapes otherShapes = OtherShapes::Stretched;
    /// If set, nothing is cut: the whole picture is scaled to the size of the result, and this draws on it. Called on a
    /// thread of the rendering; an exception fails the rendering.
    std::function<void(QImage& picture, qint64 frame)> overlay;

    /// Takes the first clip of `timeline` and the crop of its keyframes at every frame. In a timeline of another shape
    /// than its clip, crops that do not have that shape are fitted. Fails for a timeline whose
    /// first clip has no file. User-interface thread.
    static KxResult<KxRenderSource> FromTimeline(IKxTimeline& timeline);

    /// The file's name without its folder, for messages.
    QString Name() const;

    /// The crop of `frame`. Without crops, the central window of a picture of size `picture` that has the shape of
    /// `target`, so that nothing is distorted.
    QRectF CropAt(qint64 frame, const QSize& picture, const QSize& target) const;
};
