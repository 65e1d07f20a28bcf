#include <KxMedia/Read/KxVideoPackets.h>

extern "C" {
#include <libavutil/avstring.h>
#include <libavutil/common.h>
}

#include <algorithm>

namespace
{

// Scanning a larger file would take longer than users wait for a file to open.
constexpr qint64 LargestWalkedFile = qint64{512} * 1024 * 1024;

// Formats without time stamps that have no flag for it.
constexpr const char* RawFormats = "h264,hevc,m4v,mpegvideo,h263,mjpeg,dirac,vc1,obu";

bool MayJump(const AVFormatContext& context)
{
    return (context.iformat->flags & AVFMT_TS_DISCONT) != 0;
}

bool IsCountedFormat(const AVFormatContext& context)
{
    return (context.iformat->flags & AVFMT_NOTIMESTAMPS) != 0 ||
           av_match_list(context.iformat->name, RawFormats, ',') > 0;
}

AVRational ChooseTimeBase(const KxInputFile& input, const KxRational& rate)
{
    return IsCountedFormat(input.Context()) ? AVRational{rate.denominator, 2 * rate.numerator}
                                            : input.VideoStream()->time_base;
}

qint64 ToTicks(AVRational seconds, AVRational timeBase)
{
    return std::max<qint64>(1, av_rescale_q(1, seconds, timeBase));
}

qint64 TimeOfPacket(const AVPacket& packet)
{
    return packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
}

// The packet displayed last is not the last one in the file. If some packets have only a decoding time, the display
// delay of the first packet is assumed for the last one.
class TailFinder
{
public:
    void Add(const AVPacket& packet)
    {
        if ((packet.flags & AV_PKT_FLAG_DISCARD) != 0 || TimeOfPacket(packet) == AV_NOPTS_VALUE) {
            return;
        }
        const bool hasBoth = packet.pts != AV_NOPTS_VALUE && packet.dts != AV_NOPTS_VALUE;
        if (hasBoth && !m_delayTicks) {
            m_delayTicks = av_sat_sub64(packet.pts, packet.dts);
        }
        m_hasGaps = m_hasGaps || packet.pts == AV_NOPTS_VALUE;
        Extend(m_shown, TimeOfPacket(packet), packet.duration);
        if (packet.dts != AV_NOPTS_VALUE) {
            Extend(m_delayed, av_sat_add64(packet.dts, m_delayTicks.value_or(0)), packet.duration);
        }
    }

    std::optional<KxVideoPackets::Tail> Found() const
    {
        const bool isDelayed = m_hasGaps && m_delayed && m_delayed->lastTicks > m_shown->lastTicks;
        return isDelayed ? m_delayed : m_shown;
    }

private:
    static void Extend(std::optional<KxVideoPackets::Tail>& tail, qint64 ticks, qint64 durationTicks)
    {
        if (!tail || ticks > tail->lastTicks) {
            tail = KxVideoPackets::Tail{ticks, durationTicks};
        }
    }

    std::optional<qint64> m_delayTicks;
    bool m_hasGaps = false;
    std::optional<KxVideoPackets::Tail> m_shown;
    std::optional<KxVideoPackets::Tail> m_delayed;
};

} // namespace

KxVideoPackets::KxVideoPackets(std::unique_ptr<KxInputFile> input, const KxRational& rate)
    : m_input(std::move(input))
    , m_rate(rate)
    , m_timeBase(ChooseTimeBase(*m_input, rate))
    , m_stepTicks(ToTicks({rate.denominator, rate.numerator}, m_timeBase))
    , m_isCounted(IsCountedFormat(m_input->Context()))
    , m_mayJump(MayJump(m_input->Context()) && !m_isCounted)
    , m_join(m_stepTicks, ToTicks({1, 1}, m_timeBase))
{
    m_input->Select(*m_input->VideoStream());
}

qint64 KxVideoPackets::TimeOf(const AVPacket& packet)
{
    return TimeOfPacket(packet);
}

KxReadStatus KxVideoPackets::Prepare()
{
    const bool isWalked = m_isCounted || (m_mayJump && m_input->FileSize() <= LargestWalkedFile);
    if (isWalked) {
        m_walkedTail = ReadToEnd();
        if (m_input->IsCancelled()) {
            return KxReadStatus::Cancelled;
        }
        std::sort(m_keyFrames.begin(), m_keyFrames.end(),
                  [](const KeyFrame& a, const KeyFrame& b) { return a.ticks < b.ticks; });
        if (!Rewind()) {
            return KxReadStatus::Failed;
        }
    }
    m_isMarking = true;
    return KxReadStatus::Delivered;
}

std::optional<std::vector<KxClockJump>> KxVideoPackets::Jumps() const
{
    const bool isUnknown = m_mayJump && !m_walkedTail;
    return isUnknown ? std::nullopt : std::optional<std::vector<KxClockJump>>(m_jumps);
}

std::optional<KxVideoPackets::Tail> KxVideoPackets::ReadToEnd()
{
    TailFinder finder;
    const KxAvPacket packet(av_packet_alloc());
    const bool isWalk = m_isCounted || m_mayJump;
    while (packet && Next(*packet) == KxReadStatus::Delivered) {
        finder.Add(*packet);
        if (isWalk) {
            NoteWalkedPacket(*packet);
        }
        av_packet_unref(packet.get());
    }
    return finder.Found();
}

void KxVideoPackets::NoteWalkedPacket(const AVPacket& packet)
{
    if (packet.pos < 0) {
        return;
    }
    const qint64 offset = m_join.Offset();
    if (offset != m_notedOffset) {
        m_notedOffset = offset;
        m_jumps.push_back({m_notedPosition, packet.pos, av_rescale_q(offset, m_timeBase, KxMicroseconds)});
    }
    m_notedPosition = packet.pos;
    if ((packet.flags & AV_PKT_FLAG_KEY) != 0 && TimeOf(packet) != AV_NOPTS_VALUE) {
        const qint64 halfFrames = m_isCounted ? packet.dts : 0;
        m_keyFrames.push_back({TimeOf(packet), packet.pos, halfFrames, offset});
    }
}

std::optional<KxVideoPackets::Tail> KxVideoPackets::FindTail()
{
    m_isMarking = false;
    if (m_walkedTail) {
        return m_walkedTail;
    }
    if (const std::optional<Tail> claimed = ClaimedTail()) {
        return claimed;
    }
    const AVStream& stream = Stream();
    const AVFormatContext& context = m_input->Context();
    qint64 endTicks = AV_NOPTS_VALUE;
    if (stream.duration > 0) {
        endTicks = stream.duration + (stream.start_time != AV_NOPTS_VALUE ? stream.start_time : 0);
    } else if (context.duration > 0) {
        const qint64 startUs = context.start_time != AV_NOPTS_VALUE ? context.start_time : 0;
        endTicks = av_rescale_q(startUs + context.duration, KxMicroseconds, m_timeBase);
    }
    if (endTicks != AV_NOPTS_VALUE) {
        for (const int secondsBack : {0, 3, 15, 60}) {
            if (!Seek(endTicks - secondsBack * ToTicks({1, 1}, m_timeBase))) {
                continue;
            }
            if (const std::optional<Tail> tail = ReadToEnd()) {
                return tail;
            }
        }
    }
    return Rewind() ? ReadToEnd() : std::nullopt;
}

// The intended end of a truncated file, according to its header or index. An index that is built while the file is read
// ends where the file ends.
std::optional<KxVideoPackets::Tail> KxVideoPackets::ClaimedTail() const
{
    if (!m_firstPacket) {
        return std::nullopt;
    }
    AVStream& stream = Stream();
    if (m_input->IsCutOff()) {
        const qint64 fileTicks = av_rescale_q(m_input->Context().duration, KxMicroseconds, m_timeBase);
        const qint64 durationTicks = std::max<qint64>({fileTicks, stream.duration, stream.nb_frames * m_stepTicks});
        if (durationTicks > m_stepTicks) {
            return Tail{av_sat_add64(m_firstPacket->ticks, durationTicks - m_stepTicks), 0};
        }
    }
    const int entries = avformat_index_get_entries_count(&stream);
    if (entries == 0) {
        return std::nullopt;
    }
    const AVIndexEntry& last = *avformat_index_get_entry(&stream, entries - 1);
    if (last.pos + last.size <= m_input->FileSize()) {
        return std::nullopt;
    }
    const AVIndexEntry& first = *avformat_index_get_entry(&stream, 0);
    return Tail{av_sat_add64(m_firstPacket->ticks, av_sat_sub64(last.timestamp, first.timestamp)), 0};
}

KxReadStatus KxVideoPackets::ReadRaw(AVPacket& packet)
{
    for (;;) {
        const KxReadStatus status = m_input->Read(packet);
        if (status != KxReadStatus::Delivered || packet.stream_index == Stream().index) {
            return status;
        }
        av_packet_unref(&packet);
    }
}

KxReadStatus KxVideoPackets::Next(AVPacket& packet)
{
    const KxReadStatus status = ReadNext(packet);
    if (status == KxReadStatus::Delivered && m_isMarking) {
        m_marks.push_back(MarkOf(packet));
    }
    return status;
}

KxReadStatus KxVideoPackets::ReadNext(AVPacket& packet)
{
    if (m_pushedBack) {
        av_packet_move_ref(&packet, m_pushedBack.get());
        m_pushedBack.reset();
        return KxReadStatus::Delivered;
    }
    for (;;) {
        const KxReadStatus status = ReadRaw(packet);
        if (status != KxReadStatus::Delivered) {
            return status;
        }
        if (!m_firstPacket) {
            m_firstPacket = FirstPacket{TimeOf(packet), packet.size};
        }
        PutTimes(packet);
        if (!m_waitsForKeyFrame || (packet.flags & AV_PKT_FLAG_KEY) != 0) {
            m_waitsForKeyFrame = false;
            return status;
        }
        av_packet_unref(&packet);
    }
}

void KxVideoPackets::PutTimes(AVPacket& packet)
{
    if (m_isCounted) {
        const qint64 frameTicks = ToTicks({m_rate.denominator, m_rate.numerator}, Stream().time_base);
        const bool isField = packet.duration > 0 && packet.duration < frameTicks / 4 * 3;
        packet.pts = AV_NOPTS_VALUE;
        packet.dts = m_halfFrames;
        packet.duration = isField ? 1 : 2;
        m_halfFrames += packet.duration;
        return;
    }
    if (!m_mayJump) {
        return;
    }
    const qint64 decodingTicks = packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    const qint64 offset = decodingTicks != AV_NOPTS_VALUE ? m_join.OffsetFor(decodingTicks) : m_join.Offset();
    packet.pts = packet.pts != AV_NOPTS_VALUE ? av_sat_add64(packet.pts, offset) : packet.pts;
    packet.dts = packet.dts != AV_NOPTS_VALUE ? av_sat_add64(packet.dts, offset) : packet.dts;
}
