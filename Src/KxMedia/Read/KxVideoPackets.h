#pragma once

#include <KxMedia/Container/KxInputFile.h>
#include <KxMedia/Read/KxClockJumps.h>
#include <KxMedia/Read/KxTimestampRepair.h>

#include <KxCore/KxRational.h>

#include <array>
#include <memory>
#include <optional>
#include <vector>

/// The packets of a file's video stream in decoding order, with times that are also reliable after a seek.
///
/// 1. Containers with an index or with searchable times are used as they are.
/// 2. Raw streams have no times: packets are counted, in half frames because a packet may be a single field.
/// 3. Transport and program streams may be concatenated from parts whose clocks jump, and a seek in them is a guess. Up
/// to a certain size they are scanned once to build a table of key frames; raw streams always are.
///
/// One thread at a time.
class KXMEDIA_API KxVideoPackets
{
public:
    /// Above so many packets of sound, LeaveOutSound() opens the file again: six minutes of AAC.
    static constexpr int MostSoundPackets = 16384;

    /// The end of the stream according to its packets.
    struct Tail {
        /// Of the packet displayed last; a duration of 0 means unknown.
        qint64 lastTicks = 0;
        qint64 lastDurationTicks = 0;
    };

    /// `input` has a video stream.
    KxVideoPackets(std::unique_ptr<KxInputFile> input, const KxRational& rate);

    KxInputFile& Input() const { return *m_input; }
    AVStream& Stream() const { return *m_input->VideoStream(); }
    /// Duration of a tick in seconds.
    AVRational TimeBase() const { return m_timeBase; }
    /// One frame, at least 1.
    qint64 StepTicks() const { return m_stepTicks; }
    /// Call after Prepare(). Empty if the clock may jump and the file was too large to scan.
    std::optional<std::vector<KxClockJump>> Jumps() const;

    /// Scans the file if needed (cases 2 and 3). Call before the first picture is decoded.
    KxReadStatus Prepare();
    /// Leaves the position undefined: call Rewind() or Seek() next. Empty if no packet has a time.
    std::optional<Tail> FindTail();

    /// Opens the file again without its sound if the demuxer holds a large index of it. Call after a packet was read;
    /// leaves the position undefined: call Rewind() or Seek() next.
    void LeaveOutSound();

    /// The next packet. The first one after a seek is a key frame.
    KxReadStatus Next(AVPacket& packet);
    /// Returns to the first packet. False if the file could not be opened again.
    bool Rewind();
    /// The same, always by opening the file again: some demuxers leave packets out after a seek. Resume() is then
    /// impossible.
    bool Reopen();
    /// Returns to where FindTail() was called. False, with an undefined position, if the packets before it are not
    /// those that were read the first time.
    bool Resume();
    /// Seeks to the last key frame at or before `ticks`, as far as the container knows it. False if that is impossible.
    bool Seek(qint64 ticks);
    /// The time of the last key frame at or before `ticks`; empty if unknown.
    std::optional<qint64> KeyFrameAtOrBefore(qint64 ticks);

private:
    struct KeyFrame {
        qint64 ticks = 0;
        qint64 position = 0;
        qint64 halfFrames = 0;
        qint64 offsetTicks = 0;
    };

    /// What identifies a packet that is read again: its presentation time, its time and its size.
    using Mark = std::array<qint64, 3>;

    void ResetToStart();
    KxReadStatus ReadNext(AVPacket& packet);
    static Mark MarkOf(const AVPacket& packet);
    KxReadStatus ReadRaw(AVPacket& packet);
    bool OpenAgain(KxInputFile::Tracks tracks);
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
    /// Of all packets between Prepare() and FindTail().
    std::vector<Mark> m_marks;
    bool m_isMarking = false;
};
