#include <KxMedia/Write/KxSoundCopier.h>

#include <KxCore/KxFrameTime.h>
#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Write/KxSoundPackets.h>

class KxSoundCopier::Impl
{
public:
    Impl(std::unique_ptr<KxSoundPackets> source, KxAvPacket packet)
        : packets(std::move(source))
        , next(std::move(packet))
    {
    }

    /// False if no packet is left.
    bool Fill()
    {
        if (hasEnded || next->data != nullptr) {
            return !hasEnded;
        }
        const KxReadStatus status = packets->Next(*next);
        hasEnded = status != KxReadStatus::Delivered;
        hasFailed = status == KxReadStatus::Failed || packets->FileHasChanged();
        return !hasEnded;
    }

    const std::unique_ptr<KxSoundPackets> packets;
    const KxAvPacket next; ///< read and not written yet; without data if there is none
    bool hasEnded = false;
    bool hasFailed = false;
};

KxSoundCopier::KxSoundCopier(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{
}

KxSoundCopier::~KxSoundCopier() = default;

KxResult<std::unique_ptr<KxSoundCopier>> KxSoundCopier::Open(const QString& path, int stream, const KxMediaClock& clock,
                                                             const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxSoundCopier>>;
    KxResult<std::unique_ptr<KxSoundPackets>> packets = KxSoundPackets::Open(path, stream, clock, cancel);
    KxAvPacket packet(av_packet_alloc());
    if (!packets || packet == nullptr) {
        return Opened::Failure(packets ? KxAvErrorText(AVERROR(ENOMEM)) : packets.Message());
    }
    return std::unique_ptr<KxSoundCopier>(
        new KxSoundCopier(std::make_unique<Impl>(std::move(*packets), std::move(packet))));
}

const KxSoundPackets& KxSoundCopier::Packets() const
{
    return *m_impl->packets;
}

KxError KxSoundCopier::WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer)
{
    const qint64 endUs = KxFrameTime::ToMicroseconds(frames, rate, KxFrameTime::Rounding::Down);
    const AVRational timeBase = m_impl->packets->TimeBase();
    while (m_impl->Fill() && av_rescale_q(m_impl->next->pts, timeBase, KxMicroseconds) < endUs) {
        if (KxError error = writer.AddSoundPacket(*m_impl->next)) {
            return error;
        }
    }
    return std::nullopt;
}

bool KxSoundCopier::HasFailed() const
{
    return m_impl->hasFailed;
}
