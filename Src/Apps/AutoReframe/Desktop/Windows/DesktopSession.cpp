#include <Apps/AutoReframe/Desktop/DesktopSession.h>

#include <windows.h>

namespace
{

class WindowsSession final : public DesktopSession
{
public:
    ~WindowsSession() override { SetThreadExecutionState(ES_CONTINUOUS); }

    void Notify(const QString&, const QString&) override {}
    void PreventSuspend(const QString&) override { SetThreadExecutionState(ES_CONTINUOUS | ES_SYSTEM_REQUIRED); }
    void AllowSuspend() override { SetThreadExecutionState(ES_CONTINUOUS); }
    void ShowProgress(std::optional<double>) override {}
};

} // namespace

std::unique_ptr<DesktopSession> DesktopSession::Make()
{
    return std::make_unique<WindowsSession>();
}
