#pragma once

#include <KxModel/IKxAutoReframeService.h>

#include "KxObserverList.h"
#include "KxVideoAnalysis.h"

#include <QStringList>

#include <atomic>

/// The analysis service: one task at a time, each on a thread of its own.
class KXMODEL_API KxAutoReframeService final : public IKxAutoReframeService
{
public:
    /// The one behind getAutoReframeService().
    static KxAutoReframeService& Instance();

    KxAutoReframeService();
    /// Stops what runs.
    ~KxAutoReframeService();

    bool StartTask(const QString& path, const IKxAutoReframeParam& param) override;
    void StopTask(int task) override;
    int GetResults(const QString& path, QList<IKxAutoReframeResult>* out) override;
    void AddObserver(IKxAutoReframeEventObserver* observer) override;
    void RemoveObserver(IKxAutoReframeEventObserver* observer) override;

    /// A neural face detector's file for the tasks that start from now on; empty: none. Any thread.
    void SetFaceModel(const QString& path);

    /// Why the last start was refused or the last task failed; empty when it went well. Any thread.
    QString LastSentence() const;
    /// What a person should know of the last finished task. Any thread.
    QStringList LastWarnings() const;

private:
    struct Task {
        qint64 key = 0;
        QString path;
        KxCancelToken cancel;
        std::thread thread;
    };

    void Run(qint64 key, const QString& path, const KxCancelToken& cancel, KxVideoAnalysis& analysis);
    void StopAndJoin(std::unique_ptr<Task> task);

    KxObserverList m_observers;

    mutable std::mutex m_mutex;
    qint64 m_lastKey = 0;
    std::unique_ptr<Task> m_task;
    /// Threads that could not be joined because they themselves asked to stop.
    std::vector<std::thread> m_retired;
    QString m_faceModel;
    QString m_resultPath;
    KxVideoAnalysis::Result m_result;
};
