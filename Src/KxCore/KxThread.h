#pragma once

#include <KxCore/KxExport.h>

#include <KxCore/KxResult.h>

#include <functional>
#include <memory>
#include <thread>

/// Calls `work`. Returns nothing if it returns, otherwise an error message for the exception that left it ("memory ran
/// out", or what the exception says). No exception leaves this function: it is the boundary behind which the threads of
/// the host's libraries run foreign code.
KXCORE_API KxError KxCallGuarded(const std::function<void()>& work);

/// A thread that is joined by its destructor. An exception that leaves the work ends the thread, not the process.
class KXCORE_API KxThread
{
public:
    /// No thread.
    KxThread() = default;
    explicit KxThread(std::function<void()> work);
    /// Waits for the end of the work; the owner makes the work end (KxCancelToken, a closed queue) before.
    ~KxThread();
    KxThread(KxThread&& other) noexcept;
    KxThread& operator=(KxThread&& other) noexcept;
    KxThread(const KxThread&) = delete;
    KxThread& operator=(const KxThread&) = delete;

    /// Waits for the end of the work. May be called twice, but not by the thread itself.
    void Join();
    /// The error message of an exception that left the work. Valid after Join().
    KxError Failure() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
    std::thread m_thread;
};
