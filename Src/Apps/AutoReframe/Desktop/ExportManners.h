#pragma once

#include <QObject>
#include <QSet>

#include <functional>
#include <optional>

class DesktopSession;
class ExportQueue;

/// What the desktop learns of the exports. While the queue works and is not paused, the machine is not suspended, and
/// the launcher shows the progress; a person who looks at something else is notified of each export that is done or has
/// failed. User-interface thread.
class ExportManners : public QObject
{
    Q_OBJECT
public:
    /// Both are borrowed. `isLookedAt` says whether one of the program's windows is the active one.
    ExportManners(ExportQueue& queue, DesktopSession& session, std::function<bool()> isLookedAt, QObject* parent);
    ~ExportManners() override;

private:
    void HandleChange(int id);
    void HandleEnd(int id);
    void ShowWork();

    ExportQueue& m_queue;
    DesktopSession& m_session;
    const std::function<bool()> m_isLookedAt;
    QSet<int> m_inWork;
    bool m_preventsSuspend = false;
    /// As shown, in percent.
    std::optional<int> m_percent;
};
