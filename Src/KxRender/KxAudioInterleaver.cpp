#include <KxRender/KxAudioInterleaver.h>

#include <KxCore/KxFrameTime.h>

#include <algorithm>

using KxFrameTime::Rounding;

KxAudioInterleaver::KxAudioInterleaver(std::unique_ptr<KxAudioReader> reader, const KxAudioReader::Format& format,
                                       std::unique_ptr<KxLoudnessFilter> loudness)
    : m_reader(std::move(reader))
    , m_format(format)
    , m_loudness(std::move(loudness))
{
}

KxReadStatus KxAudioInterleaver::ReadBlock()
{
    return m_loudness != nullptr ? ReadFiltered() : m_reader->Next(m_block);
}

KxReadStatus KxAudioInterleaver::ReadFiltered()
{
    m_block.samples.clear();
    while (m_block.samples.empty()) {
        if (m_readStatus != KxReadStatus::Delivered) {
            return m_readStatus;
        }
        KxAudioBlock read;
        m_readStatus = m_reader->Next(read);
        const bool isDelivered = m_readStatus == KxReadStatus::Delivered;
        if (isDelivered && !m_startUs) {
            m_startUs = read.timeUs;
        }
        if ((isDelivered ? m_loudness->Add(read) : m_loudness->End()) || m_loudness->TakeInto(m_block.samples)) {
            return KxReadStatus::Failed;
        }
    }
    m_block.timeUs = m_startUs.value_or(0);
    m_block.channels = m_format.channels;
    return KxReadStatus::Delivered;
}

bool KxAudioInterleaver::Fill()
{
    if (m_hasEnded) {
        return false;
    }
    if (m_usedValues < m_block.samples.size()) {
        return true;
    }
    const KxReadStatus status = ReadBlock();
    m_usedValues = 0;
    m_hasEnded = status != KxReadStatus::Delivered;
    m_hasFailed = status == KxReadStatus::Failed;
    if (!m_hasEnded && !m_hasStarted) {
        m_hasStarted = true;
        m_nextSample = KxFrameTime::FromMicroseconds(m_block.timeUs, {m_format.sampleRateHz, 1}, Rounding::Nearest);
    }
    return !m_hasEnded;
}

KxError KxAudioInterleaver::WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer)
{
    const auto channels = static_cast<size_t>(m_format.channels);
    const qint64 endSample =
        KxFrameTime::Rescale(frames, qint64{rate.denominator} * m_format.sampleRateHz, rate.numerator, Rounding::Down);
    while (Fill() && m_nextSample < endSample) {
        const size_t left = (m_block.samples.size() - m_usedValues) / channels;
        const size_t taken = std::min(left, static_cast<size_t>(endSample - m_nextSample));
        const auto first = m_block.samples.begin() + static_cast<std::ptrdiff_t>(m_usedValues);
        KxAudioBlock part;
        part.timeUs = KxFrameTime::ToMicroseconds(m_nextSample, {m_format.sampleRateHz, 1}, Rounding::Down);
        part.channels = m_format.channels;
        part.samples.assign(first, first + static_cast<std::ptrdiff_t>(taken * channels));
        m_nextSample += static_cast<qint64>(taken);
        m_usedValues += taken * channels;
        if (KxError error = writer.AddAudio(part)) {
            return error;
        }
    }
    return std::nullopt;
}
