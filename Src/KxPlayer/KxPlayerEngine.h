#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxThread.h>
#include <KxPlayer/KxPlayerClock.h>
#include <KxPlayer/KxPlayerPicture.h>

#include <QString>

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

class KxPictureMaker;
struct KxPlaySource;

/// Makes pictures on a thread of its own: a single one, or several ahead of the clock.
///
/// 1. Each order replaces the previous one, whose work is abandoned at the next picture that comes out of the decoder.
/// So
///    the pictures that can be taken always belong to the newest order and carry their own frame numbers.
/// 2. A picture that was made ahead is not made again if it is ordered next.
/// 3. While the clock runs, frames that are late by more than one frame before work on them begins are skipped.
/// 4. A source is opened when its first picture is ordered, and closed when another source replaces it.
/// 5. After a failure, the pictures that were made before it can still be taken. The next order tries the file again.
///
/// All members are for the thread that owns the engine. The destructor cancels the work and waits for the thread.
class KXPLAYER_API KxPlayerEngine
{
public:
    /// `notify` is called when there is something to take: on the engine's thread, and from inside Show() and Play().
    /// The clock outlives the engine.
    KxPlayerEngine(const KxPlayerClock& clock, std::function<void()> notify);
    ~KxPlayerEngine();

    /// Drops everything of the previous source; null closes. No picture is made until Show() or Play().
    void Open(std::shared_ptr<const KxPlaySource> source);
    /// Sets the size of the player in device pixels, for all further pictures. Unless pictures are made for playback,
    /// the frame `standing` is made again.
    void SetArea(const QSize& area, std::optional<int> standing);

    /// Makes one frame.
    void Show(int frame);
    /// Makes `frame` and those after it.
    void Play(int frame);
    /// Makes no more pictures; those that are ready are kept.
    void Hold();

    /// The picture of `frame` if it is the next one that can be taken.
    std::optional<KxPlayerPicture> Take(int frame);
    /// The newest picture up to `frame`; the earlier ones are dropped.
    std::optional<KxPlayerPicture> TakeUpTo(int frame);
    /// The number of the next picture that can be taken.
    std::optional<int> NextFrame() const;
    /// Whether playback can begin: enough pictures are ready, or no more will come.
    bool IsPrimed() const;
    /// How many pictures are made ahead for a player of this size: as many as fit into a fixed amount of memory, within
    /// limits.
    static size_t PicturesAhead(const QSize& area);
    /// Why the newest order cannot be carried out; returned once, after all pictures have been taken.
    std::optional<QString> TakeFailure();
    /// Whether TakeFailure() will return an error message when all pictures have been taken.
    bool HasFailed() const;

private:
    enum class Mode { Idle, Still, Playing };
    struct Job {
        quint64 order = 0;
        std::shared_ptr<const KxPlaySource> source;
        KxCancelToken cancel;
        QSize area;
        int frame = 0;
    };

    void Run();
    /// For the engine's thread.
    bool IsReplaced(quint64 order) const;
    bool WaitForJob(Job& job, const KxPlaySource* opened);
    bool HasWork() const;
    int FrameToMake() const;
    void CarryOut(const Job& job, std::unique_ptr<KxPictureMaker>& maker);
    void Deliver(const Job& job, KxPlayerPicture picture, qint64 tookUs);
    void Fail(const Job& job, const QString& message);
    /// Begins an order; `modeIfMade` if the picture of `frame` is ready already.
    void Continue(int frame, Mode mode, Mode modeIfMade);
    bool KeepFrom(int frame);
    void NewOrder();

    const KxPlayerClock& m_clock;
    const std::function<void()> m_notify;

    struct Shared {
        mutable std::mutex mutex;
        std::condition_variable changed;
        bool isQuitting = false;
        quint64 order = 0;
        Mode mode = Mode::Idle;
        std::shared_ptr<const KxPlaySource> source;
        KxCancelToken cancel;
        QSize area{1, 1};
        int next = 0;
        std::deque<KxPlayerPicture> ready;
        std::optional<QString> failure;
        qint64 makingUs = 0;
    };
    Shared m_shared;
    KxThread m_thread;
};
