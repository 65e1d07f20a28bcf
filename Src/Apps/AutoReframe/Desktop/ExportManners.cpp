#include <Apps/AutoReframe/Desktop/ExportManners.h>

#include <Apps/AutoReframe/Desktop/DesktopSession.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <QFileInfo>

ExportManners::ExportManners(ExportQueue& queue, DesktopSession& session, std::function<bool()> isLookedAt,
                             QObject* parent)
    : QObject(parent)
    , m_queue(queue)
    , m_session(session)
    , m_isLookedAt(std::move(isLookedAt))
{
    connect(&queue, &ExportQueue::sigAdded, this, &ExportManners::HandleChange);
    connect(&queue, &ExportQueue::sigChanged, this, &ExportManners::HandleChange);
    connect(&queue, &ExportQueue::sigRemoved, this, &ExportManners::HandleChange);
}

ExportManners::~ExportManners() = default;

void ExportManners::HandleChange(int id)
{
    const ExportItem* const item = m_queue.Find(id);
    if (item != nullptr && item->IsInWork()) {
        m_inWork.insert(id);
    } else if (m_inWork.remove(id)) {
        HandleEnd(id);
    }
    ShowWork();
}

void ExportManners::HandleEnd(int id)
{
    const ExportItem* const item = m_queue.Find(id);
    if (item == nullptr || m_isLookedAt()) {
        return;
    }
    const QString name = QFileInfo(item->filePath).fileName();
    if (item->state == ExportItem::State::Done) {
        m_session.Notify(tr("Exported %1").arg(name), item->message);
    } else if (item->state == ExportItem::State::Failed) {
        m_session.Notify(tr("Cannot export %1").arg(name), item->message);
    }
}

void ExportManners::ShowWork()
{
    const bool isActive = m_queue.UnfinishedCount() > 0;
    const bool preventsSuspend = isActive && !m_queue.IsPaused();
    if (preventsSuspend != m_preventsSuspend) {
        m_preventsSuspend = preventsSuspend;
        if (preventsSuspend) {
            m_session.PreventSuspend(tr("Videos are being exported"));
        } else {
            m_session.AllowSuspend();
        }
    }
    constexpr int stepsPerPercent = 100;
    const std::optional<int> percent =
        isActive ? std::optional<int>(m_queue.Summary().progress / stepsPerPercent) : std::nullopt;
    if (percent != m_percent) {
        m_percent = percent;
        m_session.ShowProgress(percent ? std::optional<double>(*percent / 100.0) : std::nullopt);
    }
}
