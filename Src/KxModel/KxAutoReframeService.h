#pragma once

#include <KxModel/IKxAutoReframeService.h>

#include <KxModel/KxObserverList.h>
#include <KxModel/KxVideoAnalysis.h>

#include <QStringList>

#include <atomic>

/// The analysis service: one task at a time, each on a thread of its own.
class KXMODEL_API KxAutoReframeService final : public IKxAutoReframeService
{
public:
    /// The one behind getAutoReframeService().
    static KxAutoReframeService& Instance();

    /// Opens one analysis; KxVideoAnalysis::Open in the product.
    using Open = std::function<KxResult<std::unique_ptr<KxAnalysis>>(
        const QString& path, const IKxAutoReframeParam& param, const KxAnalysisSettings& settings,
        const KxCancelToken& cancel)>;

    KxAutoReframeService();
    explicit KxAutoReframeService(Open open);
    /// Stops what runs.
    ~KxAutoReframeService() override;

    bool StartTask(const QString& path, const IKxAutoReframeParam& param) override;
    void StopTask(int task) override;
    int GetResults(const QString& path, QList<IKxAutoReframeResult>* out) override;
    void AddObserver(IKxAutoReframeEventObserver* observer) override;
    void RemoveObserver(IKxAutoReframeEventObserver* observer) override;

    /// A neural face detector's file for the tasks that start from now on; empty: none. Any thread.
    void SetFaceModel(const QString& path);

    /// Whether the tasks that start from now on leave what they found on the way to the crops; they do not unless
    /// asked. Any thread.
    enum class Findings { Drop, Keep };
    void SetFindings(Findings findings);
    /// Of the last task, as `GetResults`; null when it did not keep them, or is not done. Any thread.
    std::shared_ptr<const KxSubjectFindings> LastFindings() const;

    /// Why the last start was refused or the last task failed; empty when it went well. Any thread.
    QString LastErrorMessage() const;
    /// What a person should know of the last finished task. Any thread.
    QStringList LastWarnings() const;

private:
    struct Task {
        qint64 key = 0;
        QString path;
        KxCancelToken cancel;
        std::thread thread;
    };

    void Run(qint64 key, const QString& path, const KxCancelToken& cancel, KxAnalysis& analysis);
    void StopAndJoin(std::unique_ptr<Task> task);

    const Open m_open;
    KxObserverList m_observers;

    mutable std::mutex m_mutex;
    qint64 m_lastKey = 0;
    std::unique_ptr<Task> m_task;
    /// Threads that could not be joined because they themselves asked to stop.
    std::vector<std::thread> m_retired;
    KxAnalysisSettings m_settings;
    QString m_resultPath;
    KxAnalysis::Result m_result;
};
