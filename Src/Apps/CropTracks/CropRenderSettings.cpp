#include <Apps/CropTracks/CropRenderSettings.h>

#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KxModel/KxMediaItem.h>

#include <QCoreApplication>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CropRenderSettings)
};

} // namespace

KxResult<QSize> CropRenderSettings::Size(const KxMediaItem& media, const QRectF& crop, const KxOutputSize& size)
{
    const QSize picture = media.StreamInfo().resolution();
    const QSize cropSize = KrExportParameters::EvenResolution(picture, crop);
    if (cropSize.isEmpty()) {
        return KxResult<QSize>::Failure(Texts::tr("its picture of %1 x %2 pixels is too small")
                                            .arg(QString::number(picture.width()), QString::number(picture.height())));
    }
    return size.For({crop.width() * picture.width(), crop.height() * picture.height()}, cropSize);
}

KxResult<KxRenderSettings> CropRenderSettings::For(const KxMediaItem& media, const QRectF& crop,
                                                   const KxOutputSize& size)
{
    const KxResult<QSize> resolution = Size(media, crop, size);
    if (!resolution) {
        return KxResult<KxRenderSettings>::Failure(resolution.Message());
    }
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(media.mediaInfo());
    const auto* const audio = dynamic_cast<const IKxAudioMediaInfo*>(media.mediaInfo());
    KxRenderSettings settings;
    settings.resolution = *resolution;
    settings.frameRate = KrExportParameters::FrameRate(video->frameRate());
    settings.videoBitRate = KrExportParameters::VideoBitRate(video->bitRate());
    settings.audioBitRate = audio->hasAudioStream()
                                ? KrExportParameters::AudioBitRate(audio->bitRate(media.audioStreamIndex()))
                                : KrExportParameters::DefaultAudioBitRate;
    settings.format.sound = KxOutputFormat::Sound::Automatic;
    return settings;
}
