#include <Apps/CropTracks/CroppedMedia.h>

#include <KxModel/KxMediaItem.h>

#include <QFileInfo>

KxCroppedClip CroppedMedia::Clip(KxMediaItem& media, const QList<IKxAutoReframeResult>& crops, const QSize& outputSize,
                                 KxRenderSource::OtherShapes otherShapes)
{
    const auto& stream = media.StreamInfo();
    KxCroppedClip clip;
    clip.path = QFileInfo(media.filePath()).absoluteFilePath();
    clip.size = stream.resolution();
    clip.frameRate = stream.frameRate();
    clip.hasSound = stream.hasAudioStream();
    clip.outputSize = outputSize;
    clip.fitsOtherShapes = otherShapes == KxRenderSource::OtherShapes::Fitted;
    for (const IKxAutoReframeResult& crop : crops) {
        clip.crops.push_back(crop.cropRect());
    }
    return clip;
}
