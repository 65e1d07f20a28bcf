#pragma once

#include <KxMedia/Read/KxTimestampRepair.h>
#include <KxMedia/Read/KxVideoPackets.h>

/// Decodes a video stream from where its packets stand to the end, with one thread or more. Damaged packets are left
/// out until too many follow each other. Size and pixel format of the pictures may change in mid-stream. One thread at
/// a time.
class KXMEDIA_API KxVideoDecoder
{
public:
    enum class Effort {
        Full,
        SkipLoopFilter, ///< pictures are a little coarser
    };
    enum class Skip {
        Nothing,
        NonReference, ///< pictures that no other picture needs
    };

    struct Picture {
        KxAvFrame frame;
        /// In the packets' time base; grows from picture to picture.
        qint64 ticks = 0;
    };

    /// On failure, returns a clause to append to the caller's message. `packets` is borrowed.
    static KxResult<std::unique_ptr<KxVideoDecoder>> Open(KxVideoPackets& packets, Effort effort);

    KxReadStatus Next(Picture& picture);
    enum class Place { Start, KeyFrame };
    /// After the packets were taken to `place`.
    void Flush(Place place);
    /// From the next packet on. Without presentation times nothing is skipped: the times of the pictures would shift.
    void SetSkip(Skip skip);
    /// Skipping ends for good when more than `packets` pass without a picture: in some streams no picture is needed by
    /// others.
    void SetLongestSkip(int packets) { m_longestSkip = packets; }

    /// The latest time of a packet that was sent while pictures were skipped, since the last Flush().
    std::optional<qint64> LatestSkippableTicks() const { return m_latestSkippableTicks; }
    /// The time of the packet that was sent last.
    std::optional<qint64> LastPacketTicks() const { return m_lastPacketTicks; }
    /// The time of the stream's first packet.
    std::optional<qint64> FirstPacketTicks() const { return m_firstPacketTicks; }
    bool HasPresentationTimes() const { return m_clock != Clock::Decoding; }

private:
    enum class Clock { Unknown, Presentation, Decoding };

    KxVideoDecoder(KxVideoPackets& packets, KxAvCodec codec);
    KxReadStatus Feed();
    bool CountError();
    /// Packets that the decoder takes in before its first picture comes out.
    int Latency() const;
    bool Accept(Picture& picture);
    std::optional<qint64> TimeOf(const AVFrame& frame);

    KxVideoPackets& m_packets;
    KxAvCodec m_codec;
    KxAvPacket m_packet;
    KxTimestampRepair m_repair;
    Clock m_clock = Clock::Unknown;
    Skip m_skip = Skip::Nothing;
    std::optional<int> m_longestSkip;
    bool m_maySkip = true;
    bool m_isDraining = false;
    bool m_isAtStart = true;
    int m_errorsInARow = 0;
    int m_packetsSincePicture; ///< below 0 while the decoder fills
    std::optional<qint64> m_latestSkippableTicks;
    std::optional<qint64> m_lastPacketTicks;
    std::optional<qint64> m_landingTicks;
    std::optional<qint64> m_firstPacketTicks;
};
