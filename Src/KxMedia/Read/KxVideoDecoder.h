#pragma once

#include <KxMedia/Read/KxTimestampRepair.h>
#include <KxMedia/Read/KxVideoPackets.h>

/// Decodes a video stream from the current packet to the end, with one or more threads. Damaged packets are skipped
/// unless too many come in a row. Size and pixel format of the pictures may change in mid-stream. One thread at a time.
class KXMEDIA_API KxVideoDecoder
{
public:
    enum class Effort {
        Full,
        SkipLoopFilter,   ///< slightly lower picture quality
        SkipNonReference, ///< for a scan: the same, and at usual rates without pictures that no other refers to
        FirstPicture,     ///< for facts: one thread, so that no picture is decoded ahead
    };
    enum class Skip {
        Nothing,
        NonReference, ///< pictures that no other picture refers to
    };

    struct Picture {
        KxAvFrame frame;
        /// In the packets' time base; strictly increasing.
        qint64 ticks = 0;
    };

    /// On failure, returns a clause to append to the caller's message. `packets` is borrowed.
    static KxResult<std::unique_ptr<KxVideoDecoder>> Open(KxVideoPackets& packets, Effort effort);
    /// Decodes with another effort from now on. Skips nothing until SetSkip(). Call after the packets were moved to
    /// their start.
    KxError Restart(Effort effort);

    KxReadStatus Next(Picture& picture);
    enum class Place { Start, KeyFrame };
    /// Call after the packets were moved to `place`.
    void Flush(Place place);
    /// Applies from the next packet on. Without presentation times, nothing is skipped: the times of the pictures would
    /// shift. Whether there are any is guessed from the first packet until the first picture is there.
    void SetSkip(Skip skip);
    /// Skipping ends for good once more than `packets` packets yield no picture: some streams consist of non-reference
    /// pictures only.
    void SetLongestSkip(int packets) { m_longestSkip = packets; }

    /// Call after the first picture, whose time is `ticks`: an earlier one may have been skipped, or the guess about
    /// presentation times was wrong.
    bool MayHaveSkippedWrongly(qint64 ticks) const;

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
    /// Number of packets that the decoder consumes before it delivers its first picture.
    int Latency() const;
    void NoteSkippable(qint64 ticks);
    bool Accept(Picture& picture);
    std::optional<qint64> TimeOf(const AVFrame& frame);

    KxVideoPackets& m_packets;
    KxAvCodec m_codec;
    KxAvPacket m_packet;
    KxTimestampRepair m_repair;
    Clock m_clock = Clock::Unknown;
    /// What the first packet suggests.
    Clock m_guessedClock = Clock::Unknown;
    Skip m_skip = Skip::Nothing;
    std::optional<int> m_longestSkip;
    bool m_maySkip = true;
    bool m_isDraining = false;
    bool m_isAtStart = true;
    int m_errorsInARow = 0;
    int m_packetsSincePicture; ///< negative while the decoder fills
    std::optional<qint64> m_earliestSkippableTicks;
    std::optional<qint64> m_latestSkippableTicks;
    std::optional<qint64> m_lastPacketTicks;
    std::optional<qint64> m_landingTicks;
    std::optional<qint64> m_firstPacketTicks;
};
