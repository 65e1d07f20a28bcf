#include <KxCore/KxThread.h>

#include <QCoreApplication>

#include <exception>
#include <new>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxThread)
};

} // namespace

KxError KxCallGuarded(const std::function<void()>& work)
{
    try {
        work();
        return std::nullopt;
    } catch (const std::bad_alloc&) {
        return Texts::tr("memory ran out");
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return Texts::tr("an unknown error occurred");
    }
}

struct KxThread::State {
    KxError failure;
};

KxThread::KxThread(std::function<void()> work)
    : m_state(std::make_shared<State>())
    , m_thread([state = m_state, work = std::move(work)] { state->failure = KxCallGuarded(work); })
{
}

KxThread::~KxThread()
{
    Join();
}

KxThread::KxThread(KxThread&& other) noexcept = default;

KxThread& KxThread::operator=(KxThread&& other) noexcept
{
    Join();
    m_state = std::move(other.m_state);
    m_thread = std::move(other.m_thread);
    return *this;
}

void KxThread::Join()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

KxError KxThread::Failure() const
{
    return m_state ? m_state->failure : std::nullopt;
}
