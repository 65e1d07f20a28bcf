#include <KxPlayer/KxPlayerEngine.h>

#include <KxPlayer/KxPictureMaker.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <chrono>

namespace
{

// Enough to begin with: bridges the delays of a decoder that works in several threads.
constexpr size_t PrimedPictures = 6;
// A third of a second or more bridges the delays of the whole machine.
constexpr size_t MostPictures = 12;
constexpr size_t MostBytes = 64U << 20U;

QString CannotShow(const KxPlaySource& source, const QString& reason)
{
    return QCoreApplication::translate("KxMediaPlayerPresenter", "Cannot show %1: %2.")
        .arg(QFileInfo(source.path).fileName(), reason);
}

} // namespace

KxPlayerEngine::KxPlayerEngine(const KxPlayerClock& clock, std::function<void()> notify)
    : m_clock(clock)
    , m_notify(std::move(notify))
    , m_thread([this] { Run(); })
{
}

KxPlayerEngine::~KxPlayerEngine()
{
    {
        const std::lock_guard<std::mutex> lock(m_shared.mutex);
        m_shared.isQuitting = true;
        m_shared.cancel.Cancel();
    }
    m_shared.changed.notify_all();
    m_thread.Join();
}

void KxPlayerEngine::NewOrder()
{
    ++m_shared.order;
    m_shared.failure.reset();
    m_shared.changed.notify_all();
}

void KxPlayerEngine::Open(std::shared_ptr<const KxPlaySource> source)
{
    std::deque<KxPlayerPicture> dropped;
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    m_shared.cancel.Cancel();
    m_shared.cancel = KxCancelToken();
    m_shared.source = std::move(source);
    m_shared.ready.swap(dropped);
    m_shared.mode = Mode::Idle;
    m_shared.next = 0;
    NewOrder();
}

void KxPlayerEngine::SetArea(const QSize& area, std::optional<int> standing)
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    m_shared.area = area.expandedTo(QSize(1, 1));
    if (m_shared.mode == Mode::Playing) {
        return;
    }
    if (m_shared.mode == Mode::Idle && standing) {
        m_shared.mode = Mode::Still;
        m_shared.next = *standing;
    }
    m_shared.ready.clear();
    NewOrder();
}

bool KxPlayerEngine::KeepFrom(int frame)
{
    std::deque<KxPlayerPicture>& ready = m_shared.ready;
    while (!ready.empty() && ready.front().frame < frame) {
        ready.pop_front();
    }
    if (!ready.empty() && ready.front().frame == frame && ready.front().area == m_shared.area) {
        return true;
    }
    ready.clear();
    return false;
}

void KxPlayerEngine::Show(int frame)
{
    Continue(frame, Mode::Still, Mode::Idle);
}

void KxPlayerEngine::Play(int frame)
{
    Continue(frame, Mode::Playing, Mode::Playing);
}

void KxPlayerEngine::Continue(int frame, Mode mode, Mode modeIfMade)
{
    bool isThere = false;
    {
        const std::lock_guard<std::mutex> lock(m_shared.mutex);
        isThere = KeepFrom(frame);
        m_shared.mode = isThere ? modeIfMade : mode;
        m_shared.next = isThere ? m_shared.ready.back().frame + 1 : frame;
        NewOrder();
    }
    if (isThere) {
        m_notify();
    }
}

void KxPlayerEngine::Hold()
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    m_shared.mode = Mode::Idle;
    NewOrder();
}

std::optional<KxPlayerPicture> KxPlayerEngine::Take(int frame)
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    if (m_shared.ready.empty() || m_shared.ready.front().frame != frame) {
        return std::nullopt;
    }
    KxPlayerPicture picture = std::move(m_shared.ready.front());
    m_shared.ready.pop_front();
    m_shared.changed.notify_all();
    return picture;
}

std::optional<KxPlayerPicture> KxPlayerEngine::TakeUpTo(int frame)
{
    std::optional<KxPlayerPicture> newest;
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    while (!m_shared.ready.empty() && m_shared.ready.front().frame <= frame) {
        newest = std::move(m_shared.ready.front());
        m_shared.ready.pop_front();
    }
    if (newest) {
        m_shared.changed.notify_all();
    }
    return newest;
}

std::optional<int> KxPlayerEngine::NextFrame() const
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    return m_shared.ready.empty() ? std::nullopt : std::optional<int>(m_shared.ready.front().frame);
}

bool KxPlayerEngine::IsPrimed() const
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    return m_shared.ready.size() >= PrimedPictures || m_shared.failure.has_value() ||
           (m_shared.source != nullptr && m_shared.next >= m_shared.source->frameCount);
}

size_t KxPlayerEngine::PicturesAhead(const QSize& area)
{
    const size_t bytes = sizeof(QRgb) * static_cast<size_t>(area.width()) * static_cast<size_t>(area.height());
    return std::clamp(MostBytes / bytes, PrimedPictures, MostPictures);
}

std::optional<QString> KxPlayerEngine::TakeFailure()
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    return m_shared.ready.empty() ? std::exchange(m_shared.failure, std::nullopt) : std::nullopt;
}

bool KxPlayerEngine::HasFailed() const
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    return m_shared.failure.has_value();
}

void KxPlayerEngine::Run()
{
    std::unique_ptr<KxPictureMaker> maker;
    Job job;
    while (WaitForJob(job, maker ? maker->Source().get() : nullptr)) {
        if (maker && maker->Source() != job.source) {
            maker.reset();
        }
        if (!job.source) {
            continue;
        }
        if (const KxError thrown = KxCallGuarded([&] { CarryOut(job, maker); })) {
            maker.reset();
            KxCallGuarded([&] { Fail(job, CannotShow(*job.source, *thrown)); });
        }
    }
}

bool KxPlayerEngine::WaitForJob(Job& job, const KxPlaySource* opened)
{
    std::unique_lock<std::mutex> lock(m_shared.mutex);
    m_shared.changed.wait(lock, [this, opened] {
        const bool isOutdated = opened != nullptr && opened != m_shared.source.get();
        return m_shared.isQuitting || isOutdated || HasWork();
    });
    // An outdated file is closed even if nothing replaces it yet.
    const bool hasWork = HasWork();
    job = {m_shared.order, hasWork ? m_shared.source : nullptr, m_shared.cancel, m_shared.area,
           hasWork ? FrameToMake() : 0};
    return !m_shared.isQuitting;
}

bool KxPlayerEngine::IsReplaced(quint64 order) const
{
    const std::lock_guard<std::mutex> lock(m_shared.mutex);
    return m_shared.order != order;
}

bool KxPlayerEngine::HasWork() const
{
    if (!m_shared.source) {
        return false;
    }
    return m_shared.mode == Mode::Still ||
           (m_shared.mode == Mode::Playing && m_shared.next < m_shared.source->frameCount &&
            m_shared.ready.size() < PicturesAhead(m_shared.area));
}

int KxPlayerEngine::FrameToMake() const
{
    const std::optional<qint64> now = m_shared.mode == Mode::Playing ? m_clock.NowUs() : std::nullopt;
    const KxPlaySource& source = *m_shared.source;
    if (!now || m_shared.next + 1 >= source.FrameAt(*now)) {
        return m_shared.next;
    }
    const int inTime = source.FrameAt(*now + m_shared.makingUs) + 1;
    return std::clamp(inTime, m_shared.next, source.LastFrame());
}

void KxPlayerEngine::CarryOut(const Job& job, std::unique_ptr<KxPictureMaker>& maker)
{
    if (!maker) {
        KxResult<std::unique_ptr<KxPictureMaker>> opened = KxPictureMaker::Open(job.source, job.cancel);
        if (!opened) {
            Fail(job, opened.Message());
            return;
        }
        maker = std::move(*opened);
    }
    using namespace std::chrono;
    const steady_clock::time_point begin = steady_clock::now();
    KxPlayerPicture picture;
    maker->GiveUpWhen([this, order = job.order] { return IsReplaced(order); });
    const KxReadStatus status = maker->Make(job.frame, job.area, picture);
    if (status == KxReadStatus::Delivered) {
        Deliver(job, std::move(picture), duration_cast<microseconds>(steady_clock::now() - begin).count());
    } else if (status == KxReadStatus::Cancelled) {
        // The order that replaced this one continues from here. Without such an order the source was closed.
        if (!IsReplaced(job.order)) {
            maker.reset();
        }
    } else {
        // The next order opens the file again.
        maker.reset();
        Fail(job, CannotShow(*job.source,
                             QCoreApplication::translate("KxMediaPlayerPresenter", "its pictures cannot be decoded")));
    }
}

void KxPlayerEngine::Deliver(const Job& job, KxPlayerPicture picture, qint64 tookUs)
{
    {
        const std::lock_guard<std::mutex> lock(m_shared.mutex);
        if (m_shared.order != job.order) {
            return;
        }
        m_shared.ready.push_back(std::move(picture));
        m_shared.next = job.frame + 1;
        // Before the clock runs, a picture may have taken a seek, which does not predict the time of the next ones.
        m_shared.makingUs = m_clock.IsRunning() ? (3 * m_shared.makingUs + tookUs) / 4 : 0;
        if (m_shared.mode == Mode::Still) {
            m_shared.mode = Mode::Idle;
        }
    }
    m_notify();
}

void KxPlayerEngine::Fail(const Job& job, const QString& message)
{
    {
        const std::lock_guard<std::mutex> lock(m_shared.mutex);
        if (m_shared.order != job.order) {
            return;
        }
        m_shared.failure = message;
        m_shared.mode = Mode::Idle;
    }
    m_notify();
}
