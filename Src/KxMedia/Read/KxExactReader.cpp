#include <KxMedia/Read/KxExactReader.h>

#include <algorithm>
#include <utility>

namespace
{

// Decoding a few pictures costs less than flushing and refilling the decoder's threads.
constexpr qint64 FewFrames = 16;
// Without an index the position of the next key frame is unknown.
constexpr double BlindSeekSeconds = 3.0;
// Pictures are skipped only if they are farther than this from the frame.
constexpr double FullBeforeSeconds = 1.0;
// A camera that is switched off while it records may lose its last pictures; that is not an early end.
constexpr qint64 ToleratedLoss = 2;

} // namespace

KxReadStatus KxExactReader::Read(qint64 frame, KxVideoFrame& picture)
{
    const qint64 count = m_decodedEnd.value_or(m_source->Facts().video->frameCount);
    const qint64 wanted = std::clamp<qint64>(frame, 0, count - 1);
    const bool isShown = !m_current.IsNull() && m_current.Index() <= wanted &&
                         (m_isAtEnd || (!m_ahead.IsNull() && wanted < m_ahead.Index()));
    KxReadStatus status = isShown ? KxReadStatus::Delivered : GoTo(wanted, SkipPolicy::SkipNonReference);
    if (status == KxReadStatus::Delivered && MayHaveLeftOutTheAnswer()) {
        Forget();
        status = GoTo(wanted, SkipPolicy::DecodeAll);
    }
    if (status == KxReadStatus::Delivered && m_landedIndex && LacksTheEnd(wanted)) {
        status = GoFromFartherBack(wanted);
    }
    if (status != KxReadStatus::Delivered) {
        return status;
    }
    NoteEnd();
    picture = m_current;
    return KxReadStatus::Delivered;
}

KxExactReader::Way KxExactReader::ChooseWay(qint64 frame)
{
    if (m_current.IsNull()) {
        return m_isAtStart && frame <= FewFrames ? Way::Continue : Way::Seek;
    }
    if (frame < m_current.Index()) {
        return Way::Seek;
    }
    const qint64 here = m_ahead.IsNull() ? m_current.Index() : m_ahead.Index();
    if (frame <= here + FewFrames || m_isAtEnd) {
        return Way::Continue;
    }
    const KxFrameGrid& grid = m_source->Grid();
    if (const std::optional<qint64> keyFrame = m_source->Packets().KeyFrameAtOrBefore(grid.TicksAt(frame))) {
        const std::optional<qint64> sent = m_source->Decoder().LastPacketTicks();
        const qint64 reached = std::max(grid.TicksAt(here), sent.value_or(grid.TicksAt(here)));
        return *keyFrame > reached + FewFrames * grid.StepTicks() ? Way::Seek : Way::Continue;
    }
    const double secondsAhead = static_cast<double>(frame - here) / grid.Rate().ToDouble();
    return secondsAhead > BlindSeekSeconds ? Way::Seek : Way::Continue;
}

KxReadStatus KxExactReader::GoTo(qint64 frame, SkipPolicy policy)
{
    if (ChooseWay(frame) == Way::Seek) {
        const KxReadStatus status = Land(frame);
        if (status != KxReadStatus::Delivered) {
            return status;
        }
    }
    return DecodeUpTo(frame, policy);
}

bool KxExactReader::LacksTheEnd(qint64 frame) const
{
    return m_isAtEnd && m_current.Index() < std::min(frame, m_source->LastPictureIndex());
}

KxReadStatus KxExactReader::GoFromFartherBack(qint64 frame)
{
    KxReadStatus status = Land(*m_landedIndex - 1);
    status = status == KxReadStatus::Delivered ? DecodeUpTo(frame, SkipPolicy::DecodeAll) : status;
    m_landedIndex.reset();
    return status;
}

void KxExactReader::Forget()
{
    m_current = {};
    m_ahead = {};
    m_isAtEnd = false;
    m_isAtStart = false;
    m_landedIndex.reset();
    m_source->Decoder().SetSkip(KxVideoDecoder::Skip::Nothing);
}

KxReadStatus KxExactReader::Land(qint64 frame)
{
    const KxFrameGrid& grid = m_source->Grid();
    const qint64 step = grid.StepTicks();
    qint64 target = grid.TicksAt(frame) + (step - 1) / 2;
    Forget();
    for (qint64 back = 2 * step; target > grid.FirstTicks(); back *= 4) {
        if (!m_source->Seek(target)) {
            break;
        }
        const KxReadStatus status = Advance();
        if (status == KxReadStatus::Cancelled) {
            return status;
        }
        if (status == KxReadStatus::Delivered && m_ahead.Index() <= frame) {
            m_landedIndex = m_ahead.Index();
            return status;
        }
        m_ahead = {};
        target -= back;
    }
    return Restart();
}

KxReadStatus KxExactReader::Restart()
{
    Forget();
    m_isAtStart = true;
    return m_source->Rewind() ? KxReadStatus::Delivered : KxReadStatus::Failed;
}

KxReadStatus KxExactReader::Advance()
{
    // The older picture is released before the next one is decoded: a large one takes 100 MB.
    if (!m_ahead.IsNull()) {
        m_current = std::exchange(m_ahead, {});
    }
    return m_source->Next(m_ahead);
}

KxReadStatus KxExactReader::DecodeUpTo(qint64 frame, SkipPolicy policy)
{
    const KxFrameGrid& grid = m_source->Grid();
    const qint64 fullFrames = static_cast<qint64>(FullBeforeSeconds * grid.Rate().ToDouble()) + FewFrames;
    m_isAtStart = false;
    // Where a seek changes the times of the first pictures, frames before them show the first one.
    while (m_current.IsNull() || m_ahead.IsNull() || m_ahead.Index() <= frame) {
        if (m_isUnwanted && m_isUnwanted()) {
            return KxReadStatus::Cancelled;
        }
        const std::optional<qint64> sent = m_source->Decoder().LastPacketTicks();
        const bool isFar = policy == SkipPolicy::SkipNonReference && sent && grid.IndexOf(*sent) + fullFrames < frame;
        m_source->Decoder().SetSkip(isFar ? KxVideoDecoder::Skip::NonReference : KxVideoDecoder::Skip::Nothing);
        const KxReadStatus status = Advance();
        if (status == KxReadStatus::Cancelled) {
            return status;
        }
        if (status != KxReadStatus::Delivered) {
            m_isAtEnd = true;
            return m_current.IsNull() ? KxReadStatus::Failed : KxReadStatus::Delivered;
        }
    }
    return KxReadStatus::Delivered;
}

void KxExactReader::NoteEnd()
{
    if (m_isAtEnd && m_current.Index() + ToleratedLoss < m_source->LastPictureIndex()) {
        m_decodedEnd = m_current.Index() + 1;
    }
}

bool KxExactReader::MayHaveLeftOutTheAnswer() const
{
    const std::optional<qint64> leftOut = m_source->LatestSkippable();
    return leftOut && m_source->Grid().IndexOf(*leftOut) > m_current.Index();
}
