#include <KxPlayer/KxPlaySource.h>

#include <KxCore/KxCropWindow.h>
#include <KxCore/KxFrameTime.h>
#include <KxModel/KxClip.h>
#include <KxModel/KxCropKeyFrames.h>

#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>

#include <algorithm>
#include <limits>

namespace
{

std::optional<int> PlayedAudio(const IKxClip& clip)
{
    if (const auto* own = dynamic_cast<const KxClip*>(&clip)) {
        const int stream = own->Facts()->defaultAudio;
        return stream >= 0 ? std::optional<int>(stream) : std::nullopt;
    }
    return clip.mediaInfo()->hasAudioStream() ? std::optional<int>(0) : std::nullopt;
}

/// `result` if it has another shape than `picture`, otherwise empty.
QSize OtherShape(const QSize& result, const QSize& picture)
{
    const bool isOther = !result.isEmpty() && !picture.isEmpty() &&
                         !KxCropWindow::HasShapeOf(result, QRectF(0.0, 0.0, 1.0, 1.0), picture);
    return isOther ? result : QSize();
}

} // namespace

std::shared_ptr<const KxPlaySource> KxPlaySource::Of(const IKxTimeline& timeline)
{
    const QList<IKxClip*> clips = timeline.clips();
    const qint64 frames = std::min<qint64>(timeline.duration(), std::numeric_limits<int>::max());
    if (clips.isEmpty() || frames <= 0) {
        return nullptr;
    }
    IKxClip& clip = *clips.first();
    const auto* video = dynamic_cast<const IKxVideoMediaInfo*>(clip.mediaInfo());
    if (video == nullptr || !video->hasVideoStream()) {
        return nullptr;
    }
    auto source = std::make_shared<KxPlaySource>();
    source->path = clip.filePath();
    source->frameRate = video->frameRate().IsPositive() ? video->frameRate() : source->frameRate;
    source->frameCount = static_cast<int>(frames);
    const QSize resolution = timeline.projectSettings().resolution;
    source->resolution = resolution.isEmpty() ? video->resolution() : resolution;
    if (auto* crops = dynamic_cast<KxCropKeyFrames*>(clip.keyFrameHelper(IKxKeyFrameHelper::CropPanZoom))) {
        source->cropKeyFrames = crops->KeyFrames();
        if (!source->cropKeyFrames.isEmpty()) {
            source->resolution = video->resolution();
            source->result = OtherShape(resolution, source->resolution);
        }
    }
    source->audioStream = PlayedAudio(clip);
    return source;
}

qint64 KxPlaySource::TimeUs(qint64 frame) const
{
    // Rounded up, so that FrameAt() of this time is `frame`.
    return KxFrameTime::ToMicroseconds(frame, frameRate, KxFrameTime::Rounding::Up);
}

int KxPlaySource::FrameAt(qint64 timeUs) const
{
    const qint64 frame = KxFrameTime::FromMicroseconds(timeUs, frameRate, KxFrameTime::Rounding::Down);
    return static_cast<int>(std::clamp<qint64>(frame, 0, std::numeric_limits<int>::max()));
}

std::optional<QRectF> KxPlaySource::CropAt(int frame) const
{
    KxCropPanZoomKeyFrameParam param;
    if (!KxCropKeyFrames::Interpolate(cropKeyFrames, frame, &param)) {
        return std::nullopt;
    }
    return KxCropWindow::Inside(param.cropRect);
}

bool KxPlaySource::IsFittedAt(int frame, const QSize& picture) const
{
    const std::optional<QRectF> crop = CropAt(frame);
    return crop && !result.isEmpty() && !KxCropWindow::HasShapeOf(result, *crop, picture);
}

QSizeF KxPlaySource::ShapeAt(int frame, const QSize& picture) const
{
    if (IsFittedAt(frame, picture)) {
        return result;
    }
    const std::optional<QRectF> crop = CropAt(frame);
    return crop ? KxCropWindow::Pixels(*crop, picture).size() : QSizeF(resolution);
}
