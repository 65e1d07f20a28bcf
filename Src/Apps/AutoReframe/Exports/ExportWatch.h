#pragma once

#include <Apps/AutoReframe/Exports/ExportQueue.h>

#include <KrAutoReframe/KrAutoReframeExtensions.h>

/// Adds the exports of one dialog to the queue, and reports to the dialog how the last one is getting on.
/// User-interface thread.
class ExportWatch : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExportWatch)

public:
    /// `queue` outlives it.
    explicit ExportWatch(ExportQueue& queue);
    ~ExportWatch() override;

    void Add(const ExportRequest& request);
    /// See KrAutoReframeExports::ListenToExports().
    void Listen(const KrAutoReframeExports::Listener& listener) { m_listener = listener; }

private:
    void Report(int id);

    ExportQueue& m_queue;
    KrAutoReframeExports::Listener m_listener;
    /// The last export that was asked for; 0 before the first one.
    int m_last = 0;
};
