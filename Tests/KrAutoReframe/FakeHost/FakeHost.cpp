#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <KxMediaLibrary/KxMediaLibraryUtils.h>
#include <KxModel/KxVBLMODEL.h>

#include <QMap>

#include <algorithm>

namespace FakeHost
{

namespace
{

struct FileRegister {
    QMap<QString, Facts> offered;
    QStringList calls;
    QString importFilter = QStringLiteral("*.mp4");
};

FileRegister& TheFiles()
{
    static FileRegister instance;
    return instance;
}

struct TimelineRegister {
    std::vector<Timeline*> live;
    QStringList calls;
    bool isCloneWithoutClips = false;
    bool areSimpleTimelinesRefused = false;
};

TimelineRegister& TheRegister()
{
    static TimelineRegister instance;
    return instance;
}

} // namespace

Timeline::Timeline(const std::vector<Facts>& clips)
{
    for (const Facts& facts : clips) {
        m_clips.push_back(std::make_unique<Clip>(facts));
    }
    if (!clips.empty()) {
        m_settings.resolution = clips.front().resolution;
    }
    TheRegister().live.push_back(this);
}

Timeline::~Timeline()
{
    auto& live = TheRegister().live;
    live.erase(std::remove(live.begin(), live.end(), this), live.end());
}

QList<IKxClip*> Timeline::clips() const
{
    QList<IKxClip*> clips;
    for (const auto& clip : m_clips) {
        clips.append(clip.get());
    }
    return clips;
}

KxProjectSettings Timeline::projectSettings() const
{
    return m_settings;
}

void Timeline::setProjectSettings(const KxProjectSettings& settings)
{
    m_settings = settings;
}

qint64 Timeline::duration() const
{
    qint64 frames = 0;
    for (const auto& clip : m_clips) {
        frames += clip->GetFacts().frameCount;
    }
    return frames;
}

std::vector<Facts> Timeline::ClipFacts() const
{
    std::vector<Facts> facts;
    for (const auto& clip : m_clips) {
        facts.push_back(clip->GetFacts());
    }
    return facts;
}

MediaItem::MediaItem(const Facts& facts, Content content)
    : m_clip(facts)
    , m_content(content)
{
}

MediaItem::~MediaItem() = default;

QString MediaItem::name() const
{
    return filePath();
}

QString MediaItem::filePath() const
{
    return m_clip.filePath();
}

const IKxMediaInfo* MediaItem::mediaInfo() const
{
    return m_clip.mediaInfo();
}

IKxClip* MediaItem::clip()
{
    return m_content == Content::Clip ? &m_clip : nullptr;
}

int MediaItem::duration() const
{
    return static_cast<int>(m_clip.GetFacts().frameCount);
}

int MediaItem::audioStreamIndex() const
{
    return m_clip.GetFacts().audioStream;
}

Timeline* MakeTimeline(const std::vector<Facts>& clips)
{
    return new Timeline(clips);
}

int LiveTimelines()
{
    return static_cast<int>(TheRegister().live.size());
}

QStringList TimelineCalls()
{
    return TheRegister().calls;
}

void CloneWithoutClips(bool isWithout)
{
    TheRegister().isCloneWithoutClips = isWithout;
}

void RefuseSimpleTimelines(bool isRefused)
{
    TheRegister().areSimpleTimelinesRefused = isRefused;
}

void OfferFile(const Facts& facts)
{
    TheFiles().offered.insert(facts.path, facts);
}

QStringList MediaCalls()
{
    return TheFiles().calls;
}

void SetImportFilter(const QString& filter)
{
    TheFiles().importFilter = filter;
}

void Reset()
{
    StopOffering();
    TheService().Reset();
    while (!TheRegister().live.empty()) {
        delete TheRegister().live.back();
    }
    TheRegister() = TimelineRegister();
    TheFiles() = FileRegister();
}

QList<IKxAutoReframeResult> MakeResults(int count, double firstX)
{
    QList<IKxAutoReframeResult> results;
    results.reserve(count);
    for (int frame = 0; frame < count; ++frame) {
        results.append(IKxAutoReframeResult(frame, QRectF(firstX + frame / 1000.0, 0.0, 0.25, 1.0)));
    }
    return results;
}

} // namespace FakeHost

// The functions of the host's model library.

IKxTimeline* IKxTimeline::createSimpleTimeline(IKxClip* clip)
{
    FakeHost::TheRegister().calls.append(QStringLiteral("createSimpleTimeline"));
    const auto* const fakeClip = dynamic_cast<const FakeHost::Clip*>(clip);
    if (fakeClip == nullptr || FakeHost::TheRegister().areSimpleTimelinesRefused) {
        return nullptr;
    }
    auto* const timeline = new FakeHost::Timeline({fakeClip->GetFacts()});
    KxProjectSettings settings;
    settings.aspectRatioType = KxProjectAspectRatio21x9;
    timeline->setProjectSettings(settings);
    return timeline;
}

IKxTimeline* IKxTimeline::clone(IKxTimeline* timeline, bool shareKeyFrames)
{
    FakeHost::TheRegister().calls.append(shareKeyFrames ? QStringLiteral("clone(share)") : QStringLiteral("clone"));
    const auto* const original = dynamic_cast<const FakeHost::Timeline*>(timeline);
    if (original == nullptr) {
        return nullptr;
    }
    if (FakeHost::TheRegister().isCloneWithoutClips) {
        return new FakeHost::Timeline(std::vector<FakeHost::Facts>());
    }
    auto* const copy = new FakeHost::Timeline(original->ClipFacts());
    copy->setProjectSettings(original->projectSettings());
    return copy;
}

void IKxTimeline::releaseInstance(IKxTimeline* timeline)
{
    if (timeline != nullptr) {
        FakeHost::TheRegister().calls.append(QStringLiteral("release"));
        delete timeline;
    }
}

IKxAutoReframeService* getAutoReframeService()
{
    return &FakeHost::TheService();
}

KxProjectFrameRateType KxVBLMODEL::toFrameRateType(const KxRational& rate)
{
    return rate == KxRational{25, 1} ? KxProjectFrameRateType::Fps25 : KxProjectFrameRateType::Custom;
}

KxProjectAspectRatioType KxVBLMODEL::toAspectRatioType(const QSize& size)
{
    return size == QSize(9, 16) ? KxProjectAspectRatio9x16 : KxProjectAspectRatioUnknown;
}

IKxAbstractMediaItem* createMediaItem(const QString& path)
{
    FakeHost::TheFiles().calls.append(QStringLiteral("create %1").arg(path));
    const auto facts = FakeHost::TheFiles().offered.constFind(path);
    return facts != FakeHost::TheFiles().offered.constEnd() ? new FakeHost::MediaItem(*facts) : nullptr;
}

void releaseMediaItem(IKxAbstractMediaItem* item)
{
    FakeHost::TheFiles().calls.append(item != nullptr ? QStringLiteral("release %1").arg(item->filePath())
                                                      : QStringLiteral("release nothing"));
    delete item;
}

// The functions of its media library.

QString KxMediaLibraryUtils::getImportVideoFilter()
{
    return FakeHost::TheFiles().importFilter;
}
