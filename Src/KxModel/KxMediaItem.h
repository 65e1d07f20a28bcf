#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxModel/IKxAbstractMedia.h>

#include <KxModel/KxClip.h>

/// A media file of the host's library. The interface documents its threads.
class KXMODEL_API KxMediaItem final : public IKxAbstractMediaItem
{
public:
    /// Reads the facts of a file; the error message names the file and the reason. Blocks.
    static KxResult<std::unique_ptr<KxMediaItem>> Open(const QString& path, const KxCancelToken& cancel);
    ~KxMediaItem() override;

    QString name() const override;
    QString filePath() const override;
    const IKxMediaInfo* mediaInfo() const override;
    IKxClip* clip() override;
    int duration() const override;
    int audioStreamIndex() const override;

private:
    explicit KxMediaItem(std::shared_ptr<const KxMediaFacts> facts);

    std::shared_ptr<const KxMediaFacts> m_facts;
    KxClip m_clip;
};
