#pragma once

#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxClockJumps.h>
#include <KxMedia/Read/KxTimestampRepair.h>

#include <KxCore/KxRational.h>

#include <memory>
#include <optional>
#include <vector>

/// The packets of a file's video stream in the order of decoding, with times that can be relied on after a seek as
/// well.
///
/// 1. Containers with an index, or with times that a seek can search for, are used as they are.
/// 2. Raw streams have no times: packets are counted, in half frames because a packet may be a single field.
/// 3. Transport and program streams may be concatenated from pieces whose clocks jump, and a seek in them is a guess.
/// Up
///    to a size they are walked through once, and the places of their key frames are kept; raw streams always are.
///
/// One thread at a time.
class KXMEDIA_API KxVideoPackets
{
public:
    /// Where the stream ends, according to its packets.
    struct Tail {
        /// Of the packet that is shown last; 0 duration when the file does not say.
        qint64 lastTicks = 0;
        qint64 lastDurationTicks = 0;
    };

    /// `input` has a video stream.
    KxVideoPackets(std::unique_ptr<KxInputFile> input, const KxRational& rate);

    KxInputFile& Input() const { return *m_input; }
    AVStream& Stream() const { return *m_input->VideoStream(); }
    /// The length of a tick in seconds.
    AVRational TimeBase() const { return m_timeBase; }
    /// One frame, at least 1.
    qint64 StepTicks() const { return m_stepTicks; }
    /// After Prepare(). Nothing when the clock may jump and the file was too large to walk through.
    std::optional<std::vector<KxClockJump>> Jumps() const;

    /// Walks through the file where that is needed (case 2 and 3). Before the first picture is decoded.
    KxReadStatus Prepare();
    /// The place after this call is not defined: Rewind() or Seek() follows. Nothing when no packet with a time was
    /// found.
    std::optional<Tail> FindTail();

    /// The next packet. After a seek the first one is that of a key frame.
    KxReadStatus Next(AVPacket& packet);
    /// To the first packet. False when the file could not be opened again.
    bool Rewind();
    /// To the last key frame at or before `ticks`, or some other place that the container takes for it. False when
    /// there is no way to get there.
    bool Seek(qint64 ticks);
    /// The time of the last key frame at or before `ticks`; nothing when it is not known.
    std::optional<qint64> KeyFrameAtOrBefore(qint64 ticks);

private:
    struct KeyFrame {
        qint64 ticks = 0;
        qint64 position = 0;
        qint64 halfFrames = 0;
        qint64 offsetTicks = 0;
    };

    KxReadStatus ReadRaw(AVPacket& packet);
    void PutTimes(AVPacket& packet);
    std::optional<Tail> ReadToEnd();
    std::optional<Tail> ClaimedTail() const;
    void NoteWalkedPacket(const AVPacket& packet);
    bool SeekToTable(qint64 ticks);
    const KeyFrame* FindInTable(qint64 ticks) const;
    static qint64 TimeOf(const AVPacket& packet);
    bool IsFirstPacket(const AVPacket& packet) const;

    std::unique_ptr<KxInputFile> m_input;
    KxRational m_rate;
    AVRational m_timeBase;
    qint64 m_stepTicks;
    bool m_isCounted;
    bool m_mayJump;
    KxTimestampJoin m_join;
    qint64 m_halfFrames = 0;
    bool m_waitsForKeyFrame = false;
    std::vector<KeyFrame> m_keyFrames;
    std::vector<KxClockJump> m_jumps;
    qint64 m_notedOffset = 0;
    qint64 m_notedPosition = 0;
    std::optional<Tail> m_walkedTail;
    struct FirstPacket {
        qint64 ticks = 0;
        int size = 0;
    };
    std::optional<FirstPacket> m_firstPacket;
    KxAvPacket m_pushedBack;
};
