#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeAnalyzer.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <QObject>
#include <QString>

#include <memory>

class IKxAbstractMediaItem;
class IKxTimeline;

/// Runs one whole reframe job: the analysis, then the keyframes that come of it, on one scale of progress and with one
/// finished signal.
///
/// Lives on the user-interface thread, where all its signals are emitted. One job at a time: a new start stops the
/// analysis that runs. Destroying it stops the analysis; the keyframe task is stopped when the last owner of the helper
/// lets go.
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
    /// Makes `timeline` the source as it is; the file to analyse is then that of its first clip, none when that clip
    /// stands for no file. Null changes nothing.
    void OpenTimeline(IKxTimeline* timeline);

    /// Starts the job for the aspect ratio `width` to `height`; `mode` is the motion speed. Returns
    /// 0 started, 1 the source has fewer than 32 frames, 2 there is no source, 3 the source has that aspect ratio
    /// already, 4 the service refused. No signal is emitted for 1 to 4.
    int StartAnalyze(int width, int height, int mode);
    /// The parameters of the last start.
    KrAutoReframeAnalyzeParam GetParam() const;
    /// Stops whatever runs. The analyzer is not marked as cancelled: no completion follows that could consume the mark,
    /// and the next job would be taken for a cancelled one.
    void StopProcess();
    /// Makes keyframes of the analyzer's results; false when there are none or too few.
    bool ApplyResults();

Q_SIGNALS:
    /// In ten-thousandths: the analysis takes 0 to 8000, the keyframes 8000 to 10000.
    void sigProcessProgress(int progress);
    void sigProcessFinished(bool success);
    /// After `sigProcessFinished`, also where the analysis went well but gave nothing to apply. The text is always
    /// empty: what a person reads is the listener's choice.
    void sigProcessError(QString text);

private:
    void HandleAnalyzeProgress(double progress);
    void HandleApplyProgress(double progress);
    void HandleAnalyzeFinished(bool success);

    QString m_path;
    std::shared_ptr<KrAutoReframeAnalyzer> m_analyzer;
    std::shared_ptr<KrAutoReframeHelper> m_helper;
};
