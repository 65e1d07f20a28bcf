#include <Apps/CropTracks/CropRenderSettings.h>

#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KxModel/KxMediaItem.h>

KxRenderSettings CropRenderSettings::For(const KxMediaItem& media, const QRectF& crop)
{
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(media.mediaInfo());
    const auto* const audio = dynamic_cast<const IKxAudioMediaInfo*>(media.mediaInfo());
    KxRenderSettings settings;
    settings.resolution = KrExportParameters::EvenResolution(video->resolution(), crop);
    settings.frameRate = KrExportParameters::FrameRate(video->frameRate());
    settings.videoBitRate = KrExportParameters::VideoBitRate(video->bitRate());
    settings.audioBitRate = audio->hasAudioStream()
                                ? KrExportParameters::AudioBitRate(audio->bitRate(media.audioStreamIndex()))
                                : KrExportParameters::DefaultAudioBitRate;
    settings.format.sound = KxOutputFormat::Sound::Automatic;
    return settings;
}
