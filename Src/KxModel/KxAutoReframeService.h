#pragma once

#include <KxModel/IKxAutoReframeChoices.h>
#include <KxModel/IKxAutoReframeDecisions.h>
#include <KxModel/IKxAutoReframePartialResults.h>
#include <KxModel/IKxAutoReframePictures.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxAutoReframeShots.h>

#include <KxModel/KxObserverList.h>
#include <KxModel/KxVideoAnalysis.h>

#include <KxCore/KxWorker.h>

#include <QStringList>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

/// The analysis service: one task at a time, on a thread of its own. No exception leaves it: what an analysis throws
/// becomes a failed task with an error message.
class KXMODEL_API KxAutoReframeService final : public IKxAutoReframeService,
                                               public IKxAutoReframeShots,
                                               public IKxAutoReframeChoices,
                                               public IKxAutoReframePictures,
                                               public IKxAutoReframeDecisions,
                                               public IKxAutoReframePartialResults
{
public:
    /// The service that getAutoReframeService() returns.
    static KxAutoReframeService& Instance();

    /// For a program of this product, at its start: makes the process-wide settings that suit an analysis. A host that
    /// loads this library decides on them itself (KxOpenCvProcess).
    static void PrepareProgram();

    /// Opens one analysis; KxVideoAnalysis::Open in the product.
    using Open = std::function<KxResult<std::unique_ptr<KxAnalysis>>(
        const QString& path, const IKxAutoReframeParam& param, const KxAnalysisSettings& settings,
        const KxCancelToken& cancel, std::shared_ptr<KxVideoScanner> opened)>;

    KxAutoReframeService();
    explicit KxAutoReframeService(Open open);
    /// Stops the running task. Not from an event.
    ~KxAutoReframeService() override;

    /// Stops the running task and ends the thread that runs tasks; the next task starts another one. Not from an event.
    void EndThread();

    bool StartTask(const QString& path, const IKxAutoReframeParam& param) override;
    void StopTask(int task) override;
    int GetResults(const QString& path, QList<IKxAutoReframeResult>* out) override;
    void AddObserver(IKxAutoReframeEventObserver* observer) override;
    void RemoveObserver(IKxAutoReframeEventObserver* observer) override;

    void CollectShots(bool isWanted) override;
    QList<KxAutoReframeShot> GetShots(const QString& path) const override;
    bool IsKnown(const QString& path) const override;

    void SetChoices(const QList<KxAutoReframeChoice>& choices) override;
    QByteArray WriteChoices(const QString& path, const QList<KxAutoReframeChoice>& choices) const override;
    QList<KxAutoReframeChoice> ReadChoices(const QByteArray& text) const override;
    KxAutoReframeGuess GuessBox(const QString& path, qint64 frame, const QPointF& point) const override;
    QList<KxAutoReframeLoss> GetLosses(const QString& path) const override;
    QList<KxAutoReframeChoice> GetPlacedChoices(const QString& path) const override;

    QList<QByteArray> DescribeFrames(const QString& path, const QList<qint64>& frames) const override;
    QList<std::optional<qint64>> FindFrames(const QString& path, const QList<KxDescribedFrame>& frames) const override;

    QList<IKxAutoReframeResult> Decide(const QString& path, const IKxAutoReframeParam& param) const override;

    void CollectPartialResults(bool isWanted) override;
    QList<IKxAutoReframeResult> GetPartialResults(const QString& path) const override;

    /// The folder of the optional detectors (KxDetectorFiles::FindNetworks) for the tasks that start from now on;
    /// empty, as at first: none. Any thread.
    void SetNetworkFolder(const QString& path);

    /// Where records of analysed videos are kept on the disk (KxRecordStore); empty: in memory alone, as at first. Any
    /// thread.
    void SetRecordFolder(const QString& path);
    /// Why the first file that could not be written there was not. Any thread.
    KxError RecordFolderProblem() const;

    /// Where the tasks that start from now on find the pictures of the video (KxAnalysisSettings::parts). Any thread.
    void SetParts(const QStringList& parts);

    /// The next task takes this video in place of opening its file, if it is of the same file and unchanged. Nothing
    /// was read of it yet. Null: the task opens its file. Any thread.
    void Offer(std::shared_ptr<KxVideoScanner> opened);

    /// What the person decided for the video of the tasks that start from now on; at first nothing. Where the record of
    /// a video is known, only what the choices need is looked at again. Any thread.
    void SetChoices(KxSubjectChoices choices);

    /// Whether the tasks that start from now on keep their intermediate results; by default they do not. Any thread.
    enum class Findings { Drop, Keep };
    void SetFindings(Findings findings);
    /// Whether the tasks that start from now on follow who speaks, where several people talk; by default they do. Any
    /// thread.
    enum class Speakers { Ignore, Follow };
    void SetSpeakers(Speakers speakers);
    /// Of the task whose results `GetResults` returns; null if it did not keep them, or failed. Any thread.
    std::shared_ptr<const KxSubjectFindings> LastFindings() const;

    /// With what a task would start now; for an analysis beside the service's tasks, which shares its records. Any
    /// thread.
    KxAnalysisSettings Settings() const;

    /// The error message of the last start if it was refused, or of the last task if it failed; otherwise empty. Any
    /// thread.
    QString LastErrorMessage() const;
    /// The neural networks that the results of the last finished task depend on. Any thread.
    std::vector<KxUsedModel> LastModels() const;
    /// The choices of the last finished task as text (KxChoicesFormat): where their pictures are, and what these look
    /// like. Any thread.
    QByteArray LastChoices() const;
    /// What a person should know about the last finished task. Any thread.
    QStringList LastWarnings() const;

    /// Frees the results of the last finished task, of which there is one a frame: GetResults() gives none any more.
    /// Any thread.
    void ForgetResults();

private:
    /// One start and its outcome.
    struct Task {
        qint64 number = 0;
        QString path;
        KxCancelToken cancel;
        std::unique_ptr<KxAnalysis> analysis;
    };

    bool Start(const QString& path, const IKxAutoReframeParam& param);
    /// Keeps the partial results of a task until it is stopped.
    std::function<void(const QList<IKxAutoReframeResult>&)> PartialTaker(const Task& task);
    /// Whether the last task was for this file and succeeded. The mutex is held.
    bool HasResultsOf(const QString& path) const;
    /// Of the last task, if it was for this file and succeeded; otherwise null.
    std::shared_ptr<const KxSubjectRecord> RecordOf(const QString& path) const;
    void RunTask(Task& task);
    void Analyse(Task& task);
    /// Keeps the result and reports the end, unless the task was stopped.
    void Report(const Task& task, KxAnalysis::Result result);
    /// Returns when every task added so far has ended; at once if called from an event, on the tasks' own thread.
    void WaitForTasks();

    const Open m_open;
    KxObserverList m_observers;

    mutable std::mutex m_mutex;
    std::condition_variable m_taskEnded;
    // Guarded by the mutex. Tasks are numbered by their starts; they are added, and end, in the order of their numbers.
    KxCancelToken m_newestStart;
    qint64 m_lastStarted = 0;
    qint64 m_lastAdded = 0;
    qint64 m_lastEnded = 0;
    std::thread::id m_taskThread; ///< while a task runs
    KxAnalysisSettings m_settings;
    std::shared_ptr<KxVideoScanner> m_opened; ///< for the next task
    QString m_resultPath;
    KxAnalysis::Result m_result;
    bool m_collectsPartial = false;
    /// Of the running task; empty without one.
    QString m_partialPath;
    QList<IKxAutoReframeResult> m_partial;
    std::unique_ptr<KxWorker> m_worker; ///< null until the first task; last, because its jobs use all of the above
};
