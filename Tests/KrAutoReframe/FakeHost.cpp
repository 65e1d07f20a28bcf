#include "FakeHost.h"

#include <KxMediaLibrary/KxMediaLibraryUtils.h>
#include <KxModel/KxVBLMODEL.h>

#include <QMap>

#include <algorithm>

namespace FakeHost
{

namespace
{

class VideoInfo : public IKxVideoMediaInfo
{
public:
    explicit VideoInfo(const Facts& facts)
        : m_facts(facts)
    {
    }

    bool hasVideoStream() const override { return true; }
    bool hasAudioStream() const override { return false; }
    qint64 frameCount() const override { return m_facts.frameCount; }
    KxRational frameRate() const override { return m_facts.frameRate; }
    QSize resolution() const override { return m_facts.resolution; }
    int bitRate() const override { return m_facts.videoBitRate; }

protected:
    const Facts& GetFacts() const { return m_facts; }

private:
    Facts m_facts;
};

class VideoAndSoundInfo : public VideoInfo, public IKxAudioMediaInfo
{
public:
    using VideoInfo::VideoInfo;

    bool hasVideoStream() const override { return true; }
    bool hasAudioStream() const override { return true; }
    int bitRate() const override { return VideoInfo::bitRate(); }
    int streamCount() const override { return GetFacts().audioBitRates.size(); }
    int bitRate(int stream) const override { return GetFacts().audioBitRates.value(stream); }
};

class SoundInfo : public IKxMediaInfo
{
public:
    bool hasVideoStream() const override { return false; }
    bool hasAudioStream() const override { return true; }
};

class OtherKeyFrameHelper : public IKxKeyFrameHelper
{
};

std::unique_ptr<IKxMediaInfo> MakeInfo(const Facts& facts)
{
    if (facts.isVideo && !facts.audioBitRates.isEmpty()) {
        return std::make_unique<VideoAndSoundInfo>(facts);
    }
    if (facts.isVideo) {
        return std::make_unique<VideoInfo>(facts);
    }
    return std::make_unique<SoundInfo>();
}

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

void Gate::Open()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isOpen = true;
    m_changed.notify_all();
}

void Gate::Wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isOpen; });
}

void KeyFrameHelper::setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames)
{
    std::function<void()> onPush;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_keyFrames = keyFrames;
        ++m_pushCount;
        onPush = m_onPush;
    }
    if (onPush) {
        onPush();
    }
}

bool KeyFrameHelper::interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_keyFrames.isEmpty()) {
        return false;
    }
    const auto next = std::upper_bound(
        m_keyFrames.cbegin(), m_keyFrames.cend(), frame,
        [](qint64 value, const KxCropPanZoomKeyFrameParam& keyFrame) { return value < keyFrame.frame; });
    if (next == m_keyFrames.cbegin() || next == m_keyFrames.cend()) {
        *out = next == m_keyFrames.cbegin() ? m_keyFrames.first() : m_keyFrames.last();
        out->frame = frame;
        return true;
    }
    const KxCropPanZoomKeyFrameParam& before = *std::prev(next);
    const double share = static_cast<double>(frame - before.frame) / static_cast<double>(next->frame - before.frame);
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    const QRectF a = before.cropRect;
    const QRectF b = next->cropRect;
    out->frame = frame;
    out->kind = before.kind;
    out->cropRect =
        QRectF(mix(a.x(), b.x()), mix(a.y(), b.y()), mix(a.width(), b.width()), mix(a.height(), b.height()));
    return true;
}

QList<KxCropPanZoomKeyFrameParam> KeyFrameHelper::KeyFrames() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_keyFrames;
}

int KeyFrameHelper::PushCount() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_pushCount;
}

void KeyFrameHelper::SetOnPush(std::function<void()> onPush)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_onPush = std::move(onPush);
}

Clip::Clip(const Facts& facts)
    : m_facts(facts)
    , m_info(MakeInfo(facts))
    , m_otherKeyFrames(std::make_unique<OtherKeyFrameHelper>())
{
}

Clip::~Clip() = default;

QString Clip::filePath() const
{
    return m_facts.path;
}

const IKxMediaInfo* Clip::mediaInfo() const
{
    return m_info.get();
}

IKxKeyFrameHelper* Clip::keyFrameHelper(int kind)
{
    if (kind != IKxKeyFrameHelper::CropPanZoom) {
        return nullptr;
    }
    return m_facts.hasCropKeyFrames ? static_cast<IKxKeyFrameHelper*>(&m_cropKeyFrames) : m_otherKeyFrames.get();
}

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

bool Service::StartTask(const QString& path, const IKxAutoReframeParam& param)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Record(QStringLiteral("StartTask(%1, %2, %3x%4)")
               .arg(path)
               .arg(param.mode())
               .arg(param.targetSize().width())
               .arg(param.targetSize().height()));
    return m_isAccepted;
}

void Service::StopTask(int task)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    Record(QStringLiteral("StopTask(%1)").arg(task));
    WaitForEvent(lock);
}

int Service::GetResults(const QString& path, QList<IKxAutoReframeResult>* out)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Record(QStringLiteral("GetResults(%1, %2 entries)").arg(path).arg(out->size()));
    *out = m_results;
    return m_status;
}

void Service::AddObserver(IKxAutoReframeEventObserver* observer)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Record(QStringLiteral("AddObserver"));
    m_observers.push_back(observer);
}

void Service::RemoveObserver(IKxAutoReframeEventObserver* observer)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    Record(QStringLiteral("RemoveObserver"));
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer), m_observers.end());
    WaitForEvent(lock);
}

void Service::Fire(int state, int percent)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    WaitForEvent(lock);
    const std::vector<IKxAutoReframeEventObserver*> observers = m_observers;
    m_isInEvent = true;
    m_eventThread = std::this_thread::get_id();
    lock.unlock();
    for (IKxAutoReframeEventObserver* const observer : observers) {
        observer->OnAutoReframeEvent(17, state, percent);
    }
    lock.lock();
    m_isInEvent = false;
    m_eventEnded.notify_all();
}

void Service::FireFromThread(int state, int percent)
{
    std::thread([this, state, percent] { Fire(state, percent); }).join();
}

void Service::Accept(bool isAccepted)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isAccepted = isAccepted;
}

void Service::Answer(int status, const QList<IKxAutoReframeResult>& results)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_status = status;
    m_results = results;
}

QStringList Service::Calls() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_calls;
}

void Service::ForgetCalls()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_calls.clear();
}

void Service::Reset()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_observers.clear();
    m_calls.clear();
    m_isAccepted = true;
    m_status = 0;
    m_results.clear();
}

void Service::Record(const QString& call)
{
    m_calls.append(call);
}

void Service::WaitForEvent(std::unique_lock<std::mutex>& lock)
{
    m_eventEnded.wait(lock, [this] { return !m_isInEvent || m_eventThread == std::this_thread::get_id(); });
}

Service& TheService()
{
    static Service service;
    return service;
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

// What the host's model library supplies to the module.

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

// What its media library supplies.

QString KxMediaLibraryUtils::getImportVideoFilter()
{
    return FakeHost::TheFiles().importFilter;
}
