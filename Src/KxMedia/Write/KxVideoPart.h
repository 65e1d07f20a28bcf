#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxRational.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Container/KxInputFile.h>

#include <memory>

/// The pictures of an MP4 file that KxMp4Writer wrote, as packets that are to be joined with those of others. One
/// thread at a time.
class KXMEDIA_API KxVideoPart
{
public:
    /// `rate` is that of the whole video. On failure, the error message names the file and the reason.
    static KxResult<std::unique_ptr<KxVideoPart>> Open(const QString& path, const KxRational& rate,
                                                       const KxCancelToken& cancel);

    const AVCodecParameters& Parameters() const { return *m_stream->codecpar; }
    /// A packet is one frame.
    AVRational TimeBase() const { return m_timeBase; }
    /// By how many frames the first picture is decoded before it is shown.
    qint64 Delay() const { return m_delay; }
    /// Whether a decoder that was set up for `other` decodes this part, too.
    bool CanFollow(const KxVideoPart& other) const;

    /// The next packet, with its time of presentation in frames from the start of this part; the decoding time is left
    /// to the caller.
    KxReadStatus Next(AVPacket& packet);

private:
    KxVideoPart(std::unique_ptr<KxInputFile> input, AVRational timeBase);
    KxReadStatus Read(AVPacket& packet);

    std::unique_ptr<KxInputFile> m_input;
    AVStream* m_stream;
    AVRational m_timeBase;
    KxAvPacket m_first; ///< read when the file was opened; without data once it was delivered
    qint64 m_delay = 0;
};
