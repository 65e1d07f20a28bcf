#pragma once

#include <KxMedia/Picture/KxFrameGrid.h>
#include <KxMedia/Picture/KxVideoFrame.h>
#include <KxMedia/Read/KxDeinterlacer.h>
#include <KxMedia/Read/KxMediaClock.h>
#include <KxMedia/Read/KxMediaFacts.h>
#include <KxMedia/Read/KxVideoDecoder.h>

/// An opened video stream, shared by the exact reader and the scanner: packets, decoder, frame grid and facts. With
/// full effort, interlaced pictures are deinterlaced. One thread at a time.
class KxVideoSource
{
public:
    /// Decodes the first picture and finds the end. With the effort of a scan, Next() continues after that picture,
    /// otherwise at the start. Fails if `input` has no video stream. With the effort for the first picture, only the
    /// facts are of use.
    static KxResult<std::unique_ptr<KxVideoSource>> Open(std::unique_ptr<KxInputFile> input,
                                                         KxVideoDecoder::Effort effort);
    static KxResult<std::unique_ptr<KxVideoSource>> Open(const QString& path, const KxCancelToken& cancel,
                                                         KxVideoDecoder::Effort effort);

    const KxMediaFacts& Facts() const { return m_facts; }
    KxMediaClock Clock() const { return {m_facts.video->firstPictureUs, m_packets->Jumps()}; }
    const KxFrameGrid& Grid() const { return *m_grid; }
    /// Grid index of the last picture according to the packets.
    qint64 LastPictureIndex() const { return m_lastPictureIndex; }
    KxVideoPackets& Packets() { return *m_packets; }
    KxVideoDecoder& Decoder() { return *m_decoder; }
    /// See KxVideoDecoder::LatestSkippableTicks().
    std::optional<qint64> LatestSkippable() const { return m_decoder->LatestSkippableTicks(); }

    bool FileHasChanged() const { return m_packets->Input().HasChanged(); }

    /// Returns to the first packet.
    bool Rewind();
    /// See KxVideoPackets::Seek().
    bool Seek(qint64 ticks);
    /// The next picture in display order, with its place on the grid.
    KxReadStatus Next(KxVideoFrame& picture);

private:
    KxVideoSource() = default;
    KxError Prepare(std::unique_ptr<KxInputFile> input, KxVideoDecoder::Effort effort);
    /// The first picture as it is if none is skipped.
    KxReadStatus DecodeFirst(KxVideoDecoder::Effort effort, KxVideoDecoder::Picture& first);
    /// False if nothing is to be skipped.
    bool StartSkipping(KxVideoDecoder::Effort effort);
    KxError StartAgain(KxVideoDecoder::Effort effort);
    KxError MeasureLength(qint64 firstTicks);
    bool IsStillPicture() const;
    void Flush(KxVideoDecoder::Place place);
    KxReadStatus NextDecoded(KxVideoDecoder::Picture& picture);
    KxReadStatus NextWhole(KxVideoDecoder::Picture& picture);
    QSize DisplayedSizeOf(AVFrame& frame) const;
    KxVideoFrame MakeFrame(KxVideoDecoder::Picture picture) const;

    std::unique_ptr<KxVideoPackets> m_packets;
    std::unique_ptr<KxVideoDecoder> m_decoder;
    /// Decoded at opening; empty if it was delivered, the position changed, or decoding begins again.
    std::optional<KxVideoDecoder::Picture> m_first;
    /// Empty if pictures may stay interlaced.
    std::optional<KxDeinterlacer> m_deinterlacer;
    std::optional<KxFrameGrid> m_grid;
    KxVideoFrame::Orientation m_orientation;
    KxMediaFacts m_facts;
    qint64 m_lastPictureIndex = 0;
};
