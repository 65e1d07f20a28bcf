#include <Tests/KrAutoReframe/FakeHost/FakeHost.h>

#include <algorithm>

namespace FakeHost
{

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

bool Service::StartTask(const QString& path, const IKxAutoReframeParam& param)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Record(QStringLiteral("StartTask(%1, %2, %3x%4)")
               .arg(path, QString::number(param.mode()), QString::number(param.targetSize().width()),
                    QString::number(param.targetSize().height())));
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
    Record(QStringLiteral("GetResults(%1, %2 entries)").arg(path, QString::number(out->size())));
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

void ServiceWithShots::CollectShots(bool isWanted)
{
    collects = isWanted;
}

QList<KxAutoReframeShot> ServiceWithShots::GetShots(const QString& path) const
{
    const bool isOfResults = Calls().contains(QStringLiteral("GetResults(%1, 0 entries)").arg(path));
    return collects && isOfResults ? shots : QList<KxAutoReframeShot>();
}

bool ServiceWithShots::IsKnown(const QString& path) const
{
    return knows.contains(path);
}

namespace
{

std::unique_ptr<ServiceWithShots>& Offered()
{
    static std::unique_ptr<ServiceWithShots> service;
    return service;
}

} // namespace

Service& TheService()
{
    static Service service;
    return Offered() ? *Offered() : service;
}

ServiceWithShots& OfferShots()
{
    Offered() = std::make_unique<ServiceWithShots>();
    return *Offered();
}

void ServiceWithChoices::SetChoices(const QList<KxAutoReframeChoice>& wanted)
{
    choices = wanted;
}

QByteArray ServiceWithChoices::WriteChoices(const QString& /*path*/, const QList<KxAutoReframeChoice>& wanted) const
{
    return QByteArray::number(wanted.size());
}

QList<KxAutoReframeChoice> ServiceWithChoices::ReadChoices(const QByteArray& text) const
{
    QList<KxAutoReframeChoice> read;
    for (int index = 0; index < text.toInt(); ++index) {
        KxAutoReframeChoice choice;
        choice.kind = KxAutoReframeChoice::Kind::Hold;
        choice.fromSeconds = index;
        choice.toSeconds = index + 1;
        read.append(choice);
    }
    return read;
}

KxAutoReframeGuess ServiceWithChoices::GuessBox(const QString& /*path*/, qint64 /*frame*/, const QPointF& point) const
{
    if (whileGuessing) {
        whileGuessing();
    }
    return {QRectF(QPointF(point.x() - guess.width() / 2.0, point.y() - guess.height() / 2.0), guess), isBackground};
}

QList<QByteArray> ServiceWithChoices::DescribeFrames(const QString& /*path*/, const QList<qint64>& frames) const
{
    QList<QByteArray> texts;
    for (const qint64 frame : frames) {
        texts += QByteArray::number(frame + trimmed);
    }
    return texts;
}

QList<std::optional<qint64>> ServiceWithChoices::FindFrames(const QString& /*path*/,
                                                            const QList<KxDescribedFrame>& frames) const
{
    QList<std::optional<qint64>> found;
    for (const KxDescribedFrame& described : frames) {
        const qint64 frame = described.pictures.isEmpty() ? described.frame : described.pictures.toLongLong() - trimmed;
        found += frame >= 0 ? std::optional<qint64>(frame) : std::nullopt;
    }
    return found;
}

ServiceWithChoices& OfferChoices()
{
    auto service = std::make_unique<ServiceWithChoices>();
    ServiceWithChoices& offered = *service;
    Offered() = std::move(service);
    return offered;
}

void StopOffering()
{
    Offered().reset();
}

} // namespace FakeHost
