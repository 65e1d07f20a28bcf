#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>
#include <KxCore/KxThread.h>
#include <KxEditList/KxCroppedClip.h>
#include <KxModel/KxVideoAnalysis.h>

#include <QObject>

class IKxTimeline;
class KrAutoReframeHelper;
class KxMediaItem;
class KxVideoScanner;

/// Finds the crop of every frame of one video: analyzes the video on a thread of its own, or reads a crop track, and
/// then applies the person's edits with the engine of the dialog. Independent of the analysis service's tasks, so the
/// dialog can analyze at the same time. User-interface thread.
class CropFinder final : public QObject, public MediaTask
{
    Q_OBJECT
public:
    /// Starts. `settings` are the service's, whose records are shared.
    CropFinder(CropRequest request, const KxAnalysisSettings& settings, CropCallbacks callbacks);
    ~CropFinder() override;

    void Cancel() override;

private:
    /// What the thread leaves for the user-interface thread.
    struct Analyzed {
        FoundCrops found; ///< the outcome, the message and the doubtful shots
        std::shared_ptr<KxMediaItem> media;
        QList<IKxAutoReframeResult> crops;
        std::vector<KxUsedModel> models;
        std::vector<qint64> shotStarts; ///< ascending; empty if the crops were read
        QSize aspect;
        QMap<uint, QRectF> editPoints; ///< where their pictures are in this cut of the video
    };

    // On the thread.
    void Run();
    Analyzed Find();
    Analyzed ReadTrack(std::shared_ptr<KxMediaItem> media) const;
    /// `video` is still open.
    Analyzed Analyze(std::shared_ptr<KxMediaItem> media, std::unique_ptr<KxVideoScanner> video);
    KxError ReasonNotToAnalyze(const KxMediaItem& media) const;

    void ApplyEdits(const Analyzed& analyzed);
    void Finish();
    KxError MakeRequest(ExportRequest& request) const;
    /// Shots that show the whole picture are fitted.
    KxRenderSource::OtherShapes OtherShapes() const;
    CropTrack MakeTrack() const;
    KxCroppedClip MakeClip() const;

    const CropRequest m_request;
    KxAnalysisSettings m_settings;
    const CropCallbacks m_callbacks;
    KxCancelToken m_cancel;
    Analyzed m_analyzed;
    std::unique_ptr<IKxTimeline, void (*)(IKxTimeline*)> m_timeline;
    std::unique_ptr<KrAutoReframeHelper> m_helper;
    // Last: it uses the others.
    KxThread m_thread;
};
