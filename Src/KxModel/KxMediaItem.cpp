#include <KxModel/KxMediaItem.h>

#include <KxCore/KxLog.h>
#include <KxMedia/Read/KxMediaProbe.h>
#include <KxMedia/Read/KxVideoScanner.h>

#include <QFileInfo>

KxMediaItem::KxMediaItem(std::shared_ptr<const KxMediaFacts> facts)
    : m_facts(std::move(facts))
    , m_clip(m_facts)
{
}

KxMediaItem::~KxMediaItem() = default;

KxResult<std::unique_ptr<KxMediaItem>> KxMediaItem::Open(const QString& path, const KxCancelToken& cancel)
{
    return Of(KxProbeMedia(path, cancel));
}

KxResult<std::unique_ptr<KxMediaItem>> KxMediaItem::Open(const QString& path, const KxCancelToken& cancel,
                                                         std::unique_ptr<KxVideoScanner>& opened)
{
    return Of(KxProbeMedia(path, cancel, opened));
}

KxResult<std::unique_ptr<KxMediaItem>> KxMediaItem::Of(KxResult<KxMediaFacts> facts)
{
    if (!facts) {
        return KxResult<std::unique_ptr<KxMediaItem>>::Failure(facts.Message());
    }
    return std::unique_ptr<KxMediaItem>(new KxMediaItem(std::make_shared<const KxMediaFacts>(std::move(*facts))));
}

QString KxMediaItem::name() const
{
    return QFileInfo(m_facts->path).fileName();
}

QString KxMediaItem::filePath() const
{
    return m_facts->path;
}

const IKxMediaInfo* KxMediaItem::mediaInfo() const
{
    return m_clip.mediaInfo();
}

IKxClip* KxMediaItem::clip()
{
    return m_facts->video || !m_facts->audio.isEmpty() ? &m_clip : nullptr;
}

int KxMediaItem::duration() const
{
    return static_cast<int>(StreamInfo().frameCount());
}

int KxMediaItem::audioStreamIndex() const
{
    return m_facts->defaultAudio;
}

IKxAbstractMediaItem* createMediaItem(const QString& path)
{
    KxResult<std::unique_ptr<KxMediaItem>> item = KxMediaItem::Open(path, KxCancelToken());
    if (!item) {
        KX_LOG_WARNING(item.Message());
        return nullptr;
    }
    return item->release();
}

void releaseMediaItem(IKxAbstractMediaItem* item)
{
    delete item;
}
