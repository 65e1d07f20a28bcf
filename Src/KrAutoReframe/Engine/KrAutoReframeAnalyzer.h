#pragma once

#include <KxModel/IKxAutoReframeResult.h>
#include <KxModel/IKxAutoReframeService.h>

#include <QList>
#include <QObject>
#include <QString>

#include <mutex>

/// The request for one analysis.
struct KrAutoReframeAnalyzeParam {
    /// The media file.
    QString path;
    /// Width of the wanted aspect ratio.
    int width = 0;
    /// Height of the wanted aspect ratio.
    int height = 0;
    /// The motion speed, passed to the service as it is.
    int mode = 0;
};

/// The module's one client of the host's auto-reframe service: starts an analysis, turns the service's events into
/// signals and fetches the results at the end.
///
/// Owned by the process through a shared pointer; made, used and destroyed on the user-interface thread. The service
/// calls `OnAutoReframeEvent` on a thread of its own, and the signals are emitted from inside that call: connect with a
/// receiver that lives on the user-interface thread. The destructor stops the running task and returns only when no
/// event is under way.
class KrAutoReframeAnalyzer : public QObject, public IKxAutoReframeEventObserver
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframeAnalyzer)

public:
    KrAutoReframeAnalyzer();
    ~KrAutoReframeAnalyzer() override;

    /// Any thread, like `GetParam`: the next job is set up while the last completion of the previous one may still read
    /// the path.
    void SetParam(const KrAutoReframeAnalyzeParam& param);
    /// The parameters of the last start.
    KrAutoReframeAnalyzeParam GetParam() const;

    /// Starts to analyse what `SetParam` gave; a task that still runs is stopped first. False when the service refuses;
    /// no signal follows then. A cancel mark that no completion has consumed yet is kept.
    bool Start();

    /// Frame 0 first. To be read only after `sigAnalyzeFinished` has been delivered.
    const QList<IKxAutoReframeResult>& GetResults() const;

    /// Service's thread. Every event is reported as progress, regardless of its state.
    void OnAutoReframeEvent(qint64 key, int state, int percent) override;

Q_SIGNALS:
    /// 1 is done; not limited to 1.
    void sigAnalyzeProgress(double progress);
    /// True if results were fetched; the list may still be empty.
    void sigAnalyzeFinished(bool success);
    /// Instead of `sigAnalyzeFinished`, when the work was stopped before.
    void sigAnalyzeCanceled();

public Q_SLOTS:
    /// Stops the running task and marks the work as cancelled. Only a completion consumes the mark: made while nothing
    /// runs, it makes the next analysis that completes report its cancellation, because a completion that was already
    /// under way at the stop cannot be distinguished from a later one.
    void StopWork();
    /// Ends the work: drops the old results, then either consumes the cancel mark or fetches the new results.
    void ProcessResult();

private:
    bool m_canceled = false;
    mutable std::mutex m_paramMutex;
    KrAutoReframeAnalyzeParam m_param;
    QList<IKxAutoReframeResult> m_results;
};
