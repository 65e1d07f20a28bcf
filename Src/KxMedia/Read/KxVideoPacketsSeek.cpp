#include <KxMedia/Read/KxVideoPackets.h>

extern "C" {
#include <libavutil/avstring.h>
}

#include <algorithm>

bool KxVideoPackets::IsFirstPacket(const AVPacket& packet) const
{
    return m_firstPacket && packet.size == m_firstPacket->size &&
           (m_isCounted || TimeOf(packet) == m_firstPacket->ticks);
}

KxVideoPackets::Mark KxVideoPackets::MarkOf(const AVPacket& packet)
{
    return {packet.pts, TimeOf(packet), packet.size};
}

void KxVideoPackets::ResetToStart()
{
    m_pushedBack.reset();
    m_waitsForKeyFrame = false;
    m_halfFrames = 0;
    m_join.Reset(0);
}

bool KxVideoPackets::Reopen()
{
    ResetToStart();
    m_isMarking = false;
    m_marks.clear();
    return OpenAgain(m_input->ReadTracks());
}

bool KxVideoPackets::Resume()
{
    const KxAvPacket packet(av_packet_alloc());
    if (m_marks.empty() || !packet || !Rewind()) {
        return false;
    }
    return std::all_of(m_marks.begin(), m_marks.end(), [&](const Mark& mark) {
        av_packet_unref(packet.get());
        return Next(*packet) == KxReadStatus::Delivered && MarkOf(*packet) == mark;
    });
}

bool KxVideoPackets::Rewind()
{
    ResetToStart();
    if (!m_firstPacket) {
        return true;
    }
    AVFormatContext& context = m_input->Context();
    const bool isByByte = m_isCounted || m_mayJump;
    const qint64 start = m_firstPacket->ticks != AV_NOPTS_VALUE ? m_firstPacket->ticks : 0;
    const int error = isByByte ? av_seek_frame(&context, -1, 0, AVSEEK_FLAG_BYTE)
                               : av_seek_frame(&context, Stream().index, start, AVSEEK_FLAG_BACKWARD);
    if (error >= 0) {
        KxAvPacket packet(av_packet_alloc());
        if (packet && ReadRaw(*packet) == KxReadStatus::Delivered && IsFirstPacket(*packet)) {
            PutTimes(*packet);
            m_pushedBack = std::move(packet);
            return true;
        }
    }
    // Some demuxers cannot seek to their very first packet, so the file is opened again.
    return OpenAgain(m_input->ReadTracks());
}

bool KxVideoPackets::OpenAgain(KxInputFile::Tracks tracks)
{
    if (m_input->HasChanged()) {
        return false;
    }
    KxResult<std::unique_ptr<KxInputFile>> again = KxInputFile::Open(m_input->Path(), m_input->Cancel(), tracks);
    const AVStream* const stream = again ? (*again)->VideoStream() : nullptr;
    // Where tracks are left out, the streams after them have other numbers.
    const bool isSameStream = stream != nullptr && (tracks != m_input->ReadTracks() ? stream->id == Stream().id
                                                                                    : stream->index == Stream().index);
    if (!isSameStream) {
        return false;
    }
    m_input = std::move(*again);
    m_input->Select(*m_input->VideoStream());
    return true;
}

void KxVideoPackets::LeaveOutSound()
{
    if (av_match_name("mov", m_input->Context().iformat->name) <= 0) {
        return;
    }
    int packets = 0;
    for (const AVStream* const stream : m_input->AudioStreams()) {
        packets = std::max(packets, avformat_index_get_entries_count(stream));
    }
    if (packets > MostSoundPackets) {
        OpenAgain(KxInputFile::Tracks::AllButSound);
    }
}

bool KxVideoPackets::Seek(qint64 ticks)
{
    m_pushedBack.reset();
    m_waitsForKeyFrame = true;
    if (!m_keyFrames.empty()) {
        return SeekToTable(ticks);
    }
    if (m_isCounted) {
        return false;
    }
    m_join.Reset(0);
    return av_seek_frame(&m_input->Context(), Stream().index, ticks, AVSEEK_FLAG_BACKWARD) >= 0;
}

const KxVideoPackets::KeyFrame* KxVideoPackets::FindInTable(qint64 ticks) const
{
    const auto after = std::upper_bound(m_keyFrames.begin(), m_keyFrames.end(), ticks,
                                        [](qint64 value, const KeyFrame& key) { return value < key.ticks; });
    return after != m_keyFrames.begin() ? &*(after - 1) : nullptr;
}

bool KxVideoPackets::SeekToTable(qint64 ticks)
{
    const KeyFrame* found = FindInTable(ticks);
    if (found == nullptr) {
        return false;
    }
    const KeyFrame& key = *found;
    m_halfFrames = key.halfFrames;
    m_join.Reset(key.offsetTicks);
    if (av_seek_frame(&m_input->Context(), Stream().index, key.position, AVSEEK_FLAG_BYTE) < 0) {
        return false;
    }
    if (!m_isCounted) {
        return true;
    }
    // The count is valid only if reading resumes at exactly the packet it was taken at.
    KxAvPacket packet(av_packet_alloc());
    if (!packet || ReadRaw(*packet) != KxReadStatus::Delivered || packet->pos != key.position) {
        return false;
    }
    PutTimes(*packet);
    m_pushedBack = std::move(packet);
    m_waitsForKeyFrame = false;
    return true;
}

std::optional<qint64> KxVideoPackets::KeyFrameAtOrBefore(qint64 ticks)
{
    if (!m_keyFrames.empty()) {
        const KeyFrame* key = FindInTable(ticks);
        return key != nullptr ? std::optional<qint64>(key->ticks) : std::nullopt;
    }
    const AVIndexEntry* entry = avformat_index_get_entry_from_timestamp(&Stream(), ticks, AVSEEK_FLAG_BACKWARD);
    return entry != nullptr ? std::optional<qint64>(entry->timestamp) : std::nullopt;
}
