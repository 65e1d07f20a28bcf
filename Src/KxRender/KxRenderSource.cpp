#include <KxRender/KxRenderSource.h>

#include <KxCore/KxCropWindow.h>
#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxRenderSource)
};

} // namespace

KxResult<KxRenderSource> KxRenderSource::FromTimeline(IKxTimeline& timeline)
{
    const QList<IKxClip*> clips = timeline.clips();
    if (clips.isEmpty() || clips.first()->filePath().isEmpty()) {
        return KxResult<KxRenderSource>::Failure(Texts::tr("Cannot render the timeline: it shows no file."));
    }
    KxRenderSource source;
    source.path = clips.first()->filePath();
    const auto* const keyFrames =
        dynamic_cast<IKxCropPanZoomKeyFrameHelper*>(clips.first()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom));
    KxCropPanZoomKeyFrameParam param;
    if (keyFrames == nullptr || !keyFrames->interpolatedParam(0, &param)) {
        return source;
    }
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(clips.first()->mediaInfo());
    const QSize result = timeline.projectSettings().resolution;
    if (video != nullptr && !video->resolution().isEmpty() && !result.isEmpty() &&
        !KxCropWindow::HasShapeOf(result, QRectF(0.0, 0.0, 1.0, 1.0), video->resolution())) {
        source.otherShapes = OtherShapes::Fitted;
    }
    auto crops = std::make_shared<std::vector<QRectF>>();
    crops->reserve(static_cast<size_t>(std::max<qint64>(timeline.duration(), 1)));
    crops->push_back(param.cropRect);
    for (qint64 frame = 1; frame < timeline.duration() && keyFrames->interpolatedParam(frame, &param); ++frame) {
        crops->push_back(param.cropRect);
    }
    source.crops = std::move(crops);
    return source;
}

QString KxRenderSource::Name() const
{
    return QFileInfo(path).fileName();
}

QRectF KxRenderSource::CropAt(qint64 frame, const QSize& picture, const QSize& target) const
{
    if (crops != nullptr && !crops->empty()) {
        const qint64 last = static_cast<qint64>(crops->size()) - 1;
        return (*crops)[static_cast<size_t>(std::clamp<qint64>(frame, 0, last))];
    }
    return KxCropWindow::Central(picture, target);
}
