#pragma once

#include <KxCore/KxRational.h>
#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeChoices.h>
#include <KxModel/IKxAutoReframeDecisions.h>
#include <KxModel/IKxAutoReframePartialResults.h>
#include <KxModel/IKxAutoReframePictures.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxAutoReframeShots.h>
#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <ostream>
#include <thread>
#include <vector>

/// A host made of plain records, so that the module's engine can be tested alone. Tests script its answers, and it
/// records the module's calls.
namespace FakeHost
{

/// A gate between threads: waiting threads continue once it is open.
class Gate
{
public:
    void Open();
    void Wait();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = false;
};

/// The properties of a clip or media item.
struct Facts {
    QString path;
    qint64 frameCount = 100;
    KxRational frameRate{25, 1};
    QSize resolution{1920, 1080};
    bool isVideo = true;
    /// Bits a second.
    int videoBitRate = 1000000;
    /// Bits a second of each audio stream; a file without sound has none.
    QList<int> audioBitRates;
    int audioStream = -1;
    /// Whether clips have crop keyframes; otherwise they have keyframes of another kind.
    bool hasCropKeyFrames = true;
};

/// Keeps the keyframes of the last push and interpolates between them. Any thread.
class KeyFrameHelper : public IKxCropPanZoomKeyFrameHelper
{
public:
    void setKeyFrames(const QList<KxCropPanZoomKeyFrameParam>& keyFrames) override;
    bool interpolatedParam(qint64 frame, KxCropPanZoomKeyFrameParam* out) const override;

    QList<KxCropPanZoomKeyFrameParam> KeyFrames() const;
    int PushCount() const;
    /// Called inside each push, on the pushing thread.
    void SetOnPush(std::function<void()> onPush);

private:
    mutable std::mutex m_mutex;
    QList<KxCropPanZoomKeyFrameParam> m_keyFrames;
    int m_pushCount = 0;
    std::function<void()> m_onPush;
};

class Clip : public IKxClip
{
public:
    explicit Clip(const Facts& facts);
    ~Clip() override;

    QString filePath() const override;
    const IKxMediaInfo* mediaInfo() const override;
    IKxKeyFrameHelper* keyFrameHelper(int kind) override;

    const Facts& GetFacts() const { return m_facts; }
    KeyFrameHelper& CropKeyFrames() { return m_cropKeyFrames; }

private:
    Facts m_facts;
    std::unique_ptr<IKxMediaInfo> m_info;
    KeyFrameHelper m_cropKeyFrames;
    std::unique_ptr<IKxKeyFrameHelper> m_otherKeyFrames;
};

class Timeline : public IKxTimeline
{
public:
    explicit Timeline(const std::vector<Facts>& clips);
    ~Timeline() override;

    QList<IKxClip*> clips() const override;
    KxProjectSettings projectSettings() const override;
    void setProjectSettings(const KxProjectSettings& settings) override;
    qint64 duration() const override;

    Clip& FirstClip() { return *m_clips.front(); }
    std::vector<Facts> ClipFacts() const;

private:
    std::vector<std::unique_ptr<Clip>> m_clips;
    KxProjectSettings m_settings;
};

class MediaItem : public IKxAbstractMediaItem
{
public:
    /// Without a clip the item has nothing to play.
    enum class Content { Clip, Nothing };

    explicit MediaItem(const Facts& facts, Content content = Content::Clip);
    ~MediaItem() override;

    QString name() const override;
    QString filePath() const override;
    const IKxMediaInfo* mediaInfo() const override;
    IKxClip* clip() override;
    int duration() const override;
    int audioStreamIndex() const override;

private:
    Clip m_clip;
    Content m_content;
};

/// The scripted service. It analyses nothing: the tests fire the events, from any thread.
class Service : public IKxAutoReframeService
{
public:
    bool StartTask(const QString& path, const IKxAutoReframeParam& param) override;
    void StopTask(int task) override;
    int GetResults(const QString& path, QList<IKxAutoReframeResult>* out) override;
    void AddObserver(IKxAutoReframeEventObserver* observer) override;
    void RemoveObserver(IKxAutoReframeEventObserver* observer) override;

    /// Calls the observers as the service's thread would; one event at a time.
    void Fire(int state, int percent);
    /// Fires from a thread that is joined before this returns.
    void FireFromThread(int state, int percent);

    void Accept(bool isAccepted);
    void Answer(int status, const QList<IKxAutoReframeResult>& results);
    /// Every operation that was called, in order, with its arguments.
    QStringList Calls() const;
    void ForgetCalls();
    void Reset();

private:
    void Record(const QString& call);
    void WaitForEvent(std::unique_lock<std::mutex>& lock);

    mutable std::mutex m_mutex;
    std::condition_variable m_eventEnded;
    bool m_isInEvent = false;
    std::thread::id m_eventThread;
    std::vector<IKxAutoReframeEventObserver*> m_observers;
    QStringList m_calls;
    bool m_isAccepted = true;
    int m_status = 0;
    QList<IKxAutoReframeResult> m_results;
};

/// The scripted service with its optional interface.
class ServiceWithShots : public Service, public IKxAutoReframeShots
{
public:
    void CollectShots(bool isWanted) override;
    QList<KxAutoReframeShot> GetShots(const QString& path) const override;
    bool IsKnown(const QString& path) const override;

    // User-interface thread only, but for `knows`, which is set before it is asked.
    bool collects = false;
    QList<KxAutoReframeShot> shots;
    QStringList knows;
};

/// The same, taking a person's choices and deciding on other ratios too. As text it writes the choices' number.
class ServiceWithChoices : public ServiceWithShots,
                           public IKxAutoReframeChoices,
                           public IKxAutoReframePictures,
                           public IKxAutoReframeDecisions,
                           public IKxAutoReframePartialResults
{
public:
    void SetChoices(const QList<KxAutoReframeChoice>& wanted) override;
    QByteArray WriteChoices(const QString& path, const QList<KxAutoReframeChoice>& wanted) const override;
    QList<KxAutoReframeChoice> ReadChoices(const QByteArray& text) const override;
    KxAutoReframeGuess GuessBox(const QString& path, qint64 frame, const QPointF& point) const override;
    QList<KxAutoReframeLoss> GetLosses(const QString&) const override { return losses; }
    QList<KxAutoReframeChoice> GetPlacedChoices(const QString&) const override { return placed; }
    /// The number of the picture in the whole video.
    QList<QByteArray> DescribeFrames(const QString& path, const QList<qint64>& frames) const override;
    /// By these numbers.
    QList<std::optional<qint64>> FindFrames(const QString& path, const QList<KxDescribedFrame>& frames) const override;
    /// For every ratio, `decided`.
    QList<IKxAutoReframeResult> Decide(const QString&, const IKxAutoReframeParam&) const override { return decided; }

    void CollectPartialResults(bool isWanted) override { collectsPartial = isWanted; }
    QList<IKxAutoReframeResult> GetPartialResults(const QString&) const override { return partial; }

    bool collectsPartial = false;
    QList<IKxAutoReframeResult> partial;
    QList<KxAutoReframeChoice> choices;
    /// Where a task found them; empty: where they are.
    QList<KxAutoReframeChoice> placed;
    QList<KxAutoReframeLoss> losses;
    /// By how many frames the video was trimmed at its start.
    qint64 trimmed = 0;
    /// Set before it is asked for.
    QList<IKxAutoReframeResult> decided;
    /// What is guessed, around the point.
    QSizeF guess{0.1, 0.2};
    /// Called on the thread that guesses, if set.
    std::function<void()> whileGuessing;
    bool isBackground = false;
};

/// The plain service, or after OfferShots() the other one.
Service& TheService();
/// Replaces the service, until the next Reset().
ServiceWithShots& OfferShots();
ServiceWithChoices& OfferChoices();
void StopOffering();

/// Makes a timeline that the host owns until the next Reset().
Timeline* MakeTimeline(const std::vector<Facts>& clips);
/// Timelines that exist.
int LiveTimelines();
/// Every making, copying and releasing of a timeline, in order.
QStringList TimelineCalls();
/// Copies made from now on have no clips.
void CloneWithoutClips(bool isWithout);
/// Simple timelines cannot be made from now on.
void RefuseSimpleTimelines(bool isRefused);
/// `createMediaItem` can open this file from now on; it can open no other.
void OfferFile(const Facts& facts);
/// Every making and releasing of a media item, in order, with its path.
QStringList MediaCalls();
/// Sets the import filter of the host's media library.
void SetImportFilter(const QString& filter);
/// Frees the timelines that are left and forgets everything scripted and recorded.
void Reset();

/// One result a frame whose rectangle identifies the frame: x is `firstX` + frame / 1000.
QList<IKxAutoReframeResult> MakeResults(int count, double firstX = 0.0);

} // namespace FakeHost

/// How a failing test prints a text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}
