#include <KxMedia/Read/KxTimestampRepair.h>

extern "C" {
#include <libavutil/common.h>
}

std::optional<qint64> KxTimestampRepair::Repair(std::optional<qint64> ticks)
{
    if (!m_last) {
        m_last = ticks;
    } else if (!ticks || *ticks < *m_last) {
        m_last = av_sat_add64(*m_last, m_stepTicks);
    } else if (*ticks == *m_last) {
        m_last = av_sat_add64(*m_last, 1);
    } else {
        m_last = ticks;
    }
    return m_last;
}

qint64 KxTimestampJoin::OffsetFor(qint64 decodingTicks)
{
    if (m_last) {
        const qint64 jump = av_sat_sub64(av_sat_add64(decodingTicks, m_offset), *m_last);
        if (jump < -m_secondTicks || jump > 10 * m_secondTicks) {
            m_offset = av_sat_sub64(av_sat_add64(*m_last, m_stepTicks), decodingTicks);
        }
    }
    m_last = av_sat_add64(decodingTicks, m_offset);
    return m_offset;
}
