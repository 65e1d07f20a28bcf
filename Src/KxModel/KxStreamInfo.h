#pragma once

#include <KxModel/IKxMediaInfo.h>

#include <KxMedia/Read/KxMediaFacts.h>

#include <memory>

/// The facts of one file behind the interfaces for video and audio. Never changes.
class KXMODEL_API KxStreamInfo final : public IKxVideoMediaInfo, public IKxAudioMediaInfo
{
public:
    explicit KxStreamInfo(std::shared_ptr<const KxMediaFacts> facts);
    ~KxStreamInfo() override;

    bool hasVideoStream() const override;
    bool hasAudioStream() const override;

    qint64 frameCount() const override;
    KxRational frameRate() const override;
    QSize resolution() const override;
    int bitRate() const override;

    int bitRate(int stream) const override;

private:
    std::shared_ptr<const KxMediaFacts> m_facts;
};
