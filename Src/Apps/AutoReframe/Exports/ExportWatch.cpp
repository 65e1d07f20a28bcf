#include <Apps/AutoReframe/Exports/ExportWatch.h>

namespace
{

KrAutoReframeExport::State StateOf(ExportItem::State state)
{
    using From = ExportItem::State;
    using To = KrAutoReframeExport::State;
    switch (state) {
    case From::Waiting:
    case From::Analyzing:
        return To::Queued;
    case From::Running:
    case From::Cancelling:
        return To::Running;
    case From::Done:
        return To::Done;
    case From::Failed:
        return To::Failed;
    case From::Cancelled:
    case From::Interrupted:
        break;
    }
    return To::Cancelled;
}

} // namespace

ExportWatch::ExportWatch(ExportQueue& queue)
    : m_queue(queue)
{
    connect(&m_queue, &ExportQueue::sigChanged, this, &ExportWatch::Report);
}

ExportWatch::~ExportWatch() = default;

void ExportWatch::Add(const ExportRequest& request)
{
    m_last = m_queue.Add(request);
    Report(m_last);
}

void ExportWatch::Report(int id)
{
    const ExportItem* const item = m_queue.Find(id);
    if (id == m_last && item != nullptr && m_listener) {
        m_listener({StateOf(item->state), item->progress, item->filePath, item->message});
    }
}
