#pragma once

#include <KxModel/IKxTimeline.h>

#include <KxModel/KxCropKeyFrames.h>
#include <KxModel/KxStreamInfo.h>

/// A whole media file on a timeline, with its crop keyframes. Shares the facts of the file with the media item that it
/// came from, so it outlives it.
class KXMODEL_API KxClip final : public IKxClip
{
public:
    explicit KxClip(std::shared_ptr<const KxMediaFacts> facts);
    ~KxClip() override;

    /// Whether a copy gets keyframes of its own, equal at first, or carries the very same ones.
    enum class KeyFrames { Copied, Shared };
    std::unique_ptr<KxClip> Copy(KeyFrames keyFrames) const;

    QString filePath() const override;
    const IKxMediaInfo* mediaInfo() const override;
    IKxKeyFrameHelper* keyFrameHelper(int kind) override;

    const KxStreamInfo& StreamInfo() const { return m_info; }
    const std::shared_ptr<const KxMediaFacts>& Facts() const { return m_facts; }
    const KxCropKeyFrames& CropKeyFrames() const { return *m_cropKeyFrames; }

private:
    std::shared_ptr<const KxMediaFacts> m_facts;
    KxStreamInfo m_info;
    std::shared_ptr<KxCropKeyFrames> m_cropKeyFrames;
};
