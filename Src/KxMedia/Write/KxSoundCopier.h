#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxMedia/Read/KxMediaClock.h>
#include <KxMedia/Write/KxSoundFeed.h>

class KxSoundPackets;

/// Copies the packets of the sound up to the end of the pictures: the last one may reach beyond it.
class KXMEDIA_API KxSoundCopier final : public KxSoundFeed
{
public:
    /// See KxSoundPackets::Open().
    static KxResult<std::unique_ptr<KxSoundCopier>> Open(const QString& path, int stream, const KxMediaClock& clock,
                                                         const KxCancelToken& cancel);
    ~KxSoundCopier() override;

    /// What the writer needs to know of the sound.
    const KxSoundPackets& Packets() const;

    KxError WriteUntil(qint64 frames, const KxRational& rate, KxMp4Writer& writer) override;
    bool HasFailed() const override;

private:
    class Impl;
    explicit KxSoundCopier(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> m_impl;
};
