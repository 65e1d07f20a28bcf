#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>
#include <KxModel/IKxAbstractMedia.h>

#include <KxModel/KxClip.h>

class KxVideoScanner;

/// A media file of the host's library. The interface documents its threads.
class KXMODEL_API KxMediaItem final : public IKxAbstractMediaItem
{
public:
    /// Reads the facts of a file; the error message names the file and the reason. Blocks.
    static KxResult<std::unique_ptr<KxMediaItem>> Open(const QString& path, const KxCancelToken& cancel);
    /// The same for a file that is going to be analysed: `opened` is its video, still open; null if it has none.
    static KxResult<std::unique_ptr<KxMediaItem>> Open(const QString& path, const KxCancelToken& cancel,
                                                       std::unique_ptr<KxVideoScanner>& opened);
    ~KxMediaItem() override;

    QString name() const override;
    QString filePath() const override;
    const IKxMediaInfo* mediaInfo() const override;
    IKxClip* clip() override;
    int duration() const override;
    int audioStreamIndex() const override;

    /// The facts of the file's streams.
    const KxStreamInfo& StreamInfo() const { return m_clip.StreamInfo(); }

private:
    explicit KxMediaItem(std::shared_ptr<const KxMediaFacts> facts);
    static KxResult<std::unique_ptr<KxMediaItem>> Of(KxResult<KxMediaFacts> facts);

    std::shared_ptr<const KxMediaFacts> m_facts;
    KxClip m_clip;
};
