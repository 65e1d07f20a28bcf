#pragma once

#include <QString>

#include <memory>
#include <optional>

/// What the program asks of the desktop that it runs on. What the desktop does not offer is left out without an error.
/// User-interface thread; no function waits for an answer.
class DesktopSession
{
public:
    virtual ~DesktopSession() = default;

    /// The session of this platform. Nothing is connected before the first request.
    static std::unique_ptr<DesktopSession> Make();

    /// Shows plain texts, in place of those of the last call if they are still shown.
    virtual void Notify(const QString& title, const QString& text) = 0;
    /// Until AllowSuspend(), or the end of the process in any way, the machine is not suspended. `reason` is shown to
    /// the person.
    virtual void PreventSuspend(const QString& reason) = 0;
    virtual void AllowSuspend() = 0;
    /// From 0 to 1 at the program's entry in the launcher; no value removes it.
    virtual void ShowProgress(std::optional<double> progress) = 0;
};
