#pragma once

#include <KxMedia/Read/KxVideoReader.h>
#include <KxMedia/Write/KxSoundFeed.h>
#include <KxRender/KxRenderSettings.h>
#include <KxRender/KxRenderSource.h>

/// The sound of a rendering as its settings ask for it.
struct KxRenderSound {
    std::unique_ptr<KxSoundFeed> feed; ///< null without sound
    KxAudioReader::Format format;      ///< of sound that is encoded
    /// Set if it is copied; belongs to the feed.
    const KxSoundPackets* copied = nullptr;
    QStringList warnings;

    /// Measures the loudness first if it is to be changed, which reads all of the sound. `reader` reads the pictures.
    static KxRenderSound Open(const KxVideoReader& reader, const KxRenderSource& source, const KxOutputFormat& format,
                              const KxCancelToken& cancel);
};
