#include <KxModel/KxVideoAnalysis.h>

#include <KxModel/KxFaceModelFiles.h>
#include <KxModel/KxPicturePipeline.h>

#include <KxCore/KxMemory.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectAnalyzer.h>
#include <KxSubject/KxSubjectFindings.h>

#include <QFileInfo>

namespace
{

KxMotionSpeed SpeedOfMode(int mode)
{
    constexpr int fast = 8;
    constexpr int slow = 24;
    return mode == fast ? KxMotionSpeed::Fast : mode == slow ? KxMotionSpeed::Slow : KxMotionSpeed::Auto;
}

KxSubjectRequest RequestFor(const KxVideoFacts& video, const IKxAutoReframeParam& param, bool wantsFindings)
{
    KxSubjectRequest request;
    request.pictureWidthPx = video.resolution.width();
    request.pictureHeightPx = video.resolution.height();
    request.frameRate = video.frameRate.ToDouble();
    request.frameCount = video.frameCount;
    request.aspectWidth = param.targetSize().width();
    request.aspectHeight = param.targetSize().height();
    request.speed = SpeedOfMode(param.mode());
    request.wantsFindings = wantsFindings;
    return request;
}

KxPictureView ViewOf(const QImage& image)
{
    return {image.constBits(), {image.width(), image.height()}, static_cast<std::size_t>(image.bytesPerLine())};
}

QList<IKxAutoReframeResult> ResultsOf(const std::vector<KxCropRect>& crops)
{
    QList<IKxAutoReframeResult> results;
    results.reserve(static_cast<int>(crops.size()));
    for (const KxCropRect& crop : crops) {
        results.append(IKxAutoReframeResult(results.size(), QRectF(crop.x, crop.y, crop.width, crop.height)));
    }
    return results;
}

} // namespace

KxAnalysis::~KxAnalysis() = default;

/// The state of one run.
class KxVideoAnalysis::Job
{
public:
    Job(KxVideoScanner& scanner, KxSubjectAnalyzer& analyzer, const KxCancelToken& cancel)
        : m_scanner(scanner)
        , m_analyzer(analyzer)
        , m_cancel(cancel)
    {
    }

    /// Adds every picture to the analyzer.
    KxError Run(const std::function<void(int)>& onProgress)
    {
        return KxPicturePipeline::Run([&](const KxPicturePipeline::Put& put) { Decode(put, onProgress); },
                                      [this](const KxPicturePipeline::Picture& picture) { Find(picture); });
    }

private:
    void Decode(const KxPicturePipeline::Put& put, const std::function<void(int)>& onProgress)
    {
        const qint64 frameCount = m_scanner.Facts().video->frameCount;
        const KxIntSize size = m_analyzer.WorkingSize();
        KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
        int reported = -1;
        KxVideoFrame picture;
        while (!m_cancel.IsCancelled() && m_scanner.Next(picture) == KxReadStatus::Delivered) {
            if (m_analyzer.Wants(picture.Index())) {
                QImage image = scaler.Scale(picture, QSize(size.width, size.height), QImage::Format_BGR888);
                if (!image.isNull() && !put({picture.Index(), std::move(image)})) {
                    return;
                }
            }
            const int percent = static_cast<int>(qMin<qint64>(picture.Index() * 100 / frameCount, 99));
            if (percent > reported) {
                reported = percent;
                onProgress(percent);
            }
        }
    }

    void Find(const KxPicturePipeline::Picture& picture)
    {
        if (!m_cancel.IsCancelled()) {
            m_analyzer.AddPicture(picture.frame, ViewOf(picture.image));
        }
    }

    KxVideoScanner& m_scanner;
    KxSubjectAnalyzer& m_analyzer;
    KxCancelToken m_cancel;
};

KxVideoAnalysis::KxVideoAnalysis(std::unique_ptr<KxVideoScanner> scanner, const IKxAutoReframeParam& param,
                                 const KxAnalysisSettings& settings, const KxCancelToken& cancel)
    : m_scanner(std::move(scanner))
    , m_param(param)
    , m_settings(settings)
    , m_cancel(cancel)
{
}

KxVideoAnalysis::~KxVideoAnalysis() = default;

KxResult<std::unique_ptr<KxAnalysis>> KxVideoAnalysis::Open(const QString& path, const IKxAutoReframeParam& param,
                                                            const KxAnalysisSettings& settings,
                                                            const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxAnalysis>>;
    if (param.targetSize().isEmpty()) {
        return Opened::Failure(
            QStringLiteral("The aspect ratio %1:%2 has a side that is not positive.")
                .arg(QString::number(param.targetSize().width()), QString::number(param.targetSize().height())));
    }
    KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(path, cancel);
    if (!scanner) {
        return Opened::Failure(scanner.Message());
    }
    const qint64 frames = (*scanner)->Facts().video->frameCount;
    if (frames > MostFrames) {
        return Opened::Failure(
            QStringLiteral("Cannot analyse %1: its time stamps span %2 frames, the limit is %3.")
                .arg(QFileInfo(path).fileName(), QString::number(frames), QString::number(MostFrames)));
    }
    return std::unique_ptr<KxAnalysis>(new KxVideoAnalysis(std::move(*scanner), param, settings, cancel));
}

KxAnalysis::Result KxVideoAnalysis::Run(const std::function<void(int percent)>& onProgress)
{
    Result result;
    const KxMediaFacts facts = m_scanner->Facts();
    KxFaceModelFiles::Contents faces = KxFaceModelFiles::Read(m_settings.faceDetectorPath);
    KxSubjectAnalyzer analyzer(RequestFor(*facts.video, m_param, m_settings.wantsFindings), faces.models);
    faces.models = {};
    const KxError problem = Job(*m_scanner, analyzer, m_cancel).Run(onProgress);
    const bool endedEarly = m_scanner->EndedEarly();
    // The decoder's buffers take the most memory: they are freed before the results of every frame are made.
    m_scanner.reset();
    KxMemory::ReturnUnused();
    const QString name = QFileInfo(facts.path).fileName();
    if (problem && !m_cancel.IsCancelled()) {
        result.message = QStringLiteral("Cannot analyse %1: %2.").arg(name, problem->simplified());
        return result;
    }
    const std::vector<KxCropRect> crops = analyzer.Finish(m_cancel);
    if (m_cancel.IsCancelled()) {
        result.outcome = KxOutcome::Cancelled;
        return result;
    }
    if (!faces.detectorProblem.isEmpty()) {
        result.warnings += faces.detectorProblem;
    } else if (analyzer.IsFaceDetectorRefused()) {
        result.warnings += KxFaceModelFiles::DetectorProblem(
            m_settings.faceDetectorPath, QStringLiteral("it is not a face detector that OpenCV can run"));
    }
    if (endedEarly) {
        result.warnings += QStringLiteral("%1 is cut off or damaged: it decodes only in part.").arg(name);
    }
    result.crops = ResultsOf(crops);
    if (m_settings.wantsFindings) {
        result.findings = std::make_shared<KxSubjectFindings>(analyzer.Findings());
    }
    result.outcome = KxOutcome::Done;
    return result;
}
