#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <QObject>
#include <QString>

#include <memory>

class IKxAbstractMediaItem;
class IKxTimeline;

/// Runs one whole reframe job: the analysis and then the keyframes made from it, with one progress scale and one
/// finished signal.
///
/// Lives on the user-interface thread, where all its signals are emitted. One job at a time: a new start stops the
/// previous job. Progress and completions of a stopped job that are still queued are dropped, so they reach neither the
/// listener nor a newer job. The destructor stops the analysis; the keyframe task is stopped when the last owner of the
/// helper releases it.
class KrAutoReframeProcess : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframeProcess)

public:
    explicit KrAutoReframeProcess(QObject* parent);
    ~KrAutoReframeProcess() override;

    const std::shared_ptr<KrAutoReframeAnalyzer>& GetAnalyzer() const;
    const std::shared_ptr<KrAutoReframeHelper>& GetHelper() const;

    /// Makes `item` the source: a simple timeline around its clip, in the format of the media. An item that yields no
    /// clip or no timeline only has its path recorded. Null changes nothing.
    void OpenMedia(IKxAbstractMediaItem* item);
    /// Makes `timeline` the source as it is. The file to analyse is that of its first clip, none when the clip has no
    /// file. Null changes nothing.
    void OpenTimeline(IKxTimeline* timeline);

    /// The file to analyse; empty without one.
    const QString& GetPath() const;

    /// Starts the job for the aspect ratio `width` to `height`; `mode` is the motion speed. Returns
    /// 0 started, 1 the source has fewer than 32 frames, 2 there is no source, 3 the source has that aspect ratio
    /// already, 4 the service refused. No signal is emitted for 1 to 4.
    int StartAnalyze(int width, int height, int mode);
    /// The parameters of the last start.
    KrAutoReframeAnalyzeParam GetParam() const;
    /// Stops the job. During the analysis no signal follows; a stopped keyframe task ends with
    /// `sigProcessFinished(false)`. The analyzer is not marked as cancelled: no completion follows that could consume
    /// the mark, so the next job would be reported as cancelled.
    void StopProcess();
    /// Makes keyframes from the analyzer's results; false when there are none or too few.
    bool ApplyResults();

Q_SIGNALS:
    /// In ten-thousandths: the analysis takes 0 to 8000, the keyframes 8000 to 10000.
    void sigProcessProgress(int progress);
    void sigProcessFinished(bool success);
    /// Follows `sigProcessFinished`, also when the analysis succeeded but there was nothing to apply. The text is
    /// always empty: the listener chooses the message.
    void sigProcessError(QString text);

private:
    void DropQueuedEvents();
    void HandleAnalyzeProgress(double progress);
    void HandleApplyProgress(double progress);
    void HandleAnalyzeFinished(bool success);

    /// Receives the signals of the service's and the worker's thread, so that queued ones can be dropped.
    QObject* m_jobEvents;
    QString m_path;
    std::shared_ptr<KrAutoReframeAnalyzer> m_analyzer;
    std::shared_ptr<KrAutoReframeHelper> m_helper;
};
