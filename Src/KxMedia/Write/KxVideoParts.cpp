#include <KxMedia/Write/KxVideoParts.h>

#include <KxMedia/Container/KxAvError.h>

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxVideoParts)
};

} // namespace

KxVideoParts::KxVideoParts(QStringList paths, const KxRational& rate, const KxCancelToken& cancel, KxAvPacket packet)
    : m_paths(std::move(paths))
    , m_rate(rate)
    , m_cancel(cancel)
    , m_packet(std::move(packet))
{
}

KxVideoParts::~KxVideoParts() = default;

KxResult<std::unique_ptr<KxVideoParts>> KxVideoParts::Open(const QStringList& paths, const KxRational& rate,
                                                           const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxVideoParts>>;
    KxAvPacket packet(av_packet_alloc());
    if (packet == nullptr) {
        return Opened::Failure(KxAvErrorText(AVERROR(ENOMEM)));
    }
    std::unique_ptr<KxVideoParts> parts(new KxVideoParts(paths, rate, cancel, std::move(packet)));
    if (const KxError problem = parts->Check()) {
        return Opened::Failure(*problem);
    }
    return parts;
}

KxError KxVideoParts::Check()
{
    for (const QString& path : m_paths) {
        KxResult<std::unique_ptr<KxVideoPart>> part = KxVideoPart::Open(path, m_rate, m_cancel);
        if (!part) {
            return part.Message();
        }
        m_delay = std::max(m_delay, (*part)->Delay());
        if (m_first == nullptr) {
            m_first = std::move(*part);
        } else if (!(*part)->CanFollow(*m_first)) {
            return Texts::tr("Cannot join %1 to %2: it was encoded in another way.").arg(path, m_paths.first());
        }
    }
    return std::nullopt;
}

KxReadStatus KxVideoParts::Fail(const QString& message)
{
    m_problem = message;
    return KxReadStatus::Failed;
}

KxReadStatus KxVideoParts::Next()
{
    for (;;) {
        if (m_current == nullptr) {
            if (m_opened == m_paths.size()) {
                return KxReadStatus::End;
            }
            KxResult<std::unique_ptr<KxVideoPart>> part = KxVideoPart::Open(m_paths.at(m_opened++), m_rate, m_cancel);
            if (!part) {
                return m_cancel.IsCancelled() ? KxReadStatus::Cancelled : Fail(part.Message());
            }
            m_current = std::move(*part);
            m_start = m_packets;
        }
        const KxReadStatus status = m_current->Next(*m_packet);
        if (status == KxReadStatus::Delivered) {
            m_packet->pts += m_start;
            // Each part begins as many frames early as the one before ends.
            m_packet->dts = m_packets++ - m_delay;
            return m_packet->pts >= m_packet->dts
                       ? status
                       : Fail(Texts::tr("Cannot join %1: its time stamps are damaged.").arg(m_paths.at(m_opened - 1)));
        }
        if (status != KxReadStatus::End) {
            return status == KxReadStatus::Cancelled
                       ? status
                       : Fail(Texts::tr("Cannot join %1: it is damaged.").arg(m_paths.at(m_opened - 1)));
        }
        m_current.reset();
    }
}
