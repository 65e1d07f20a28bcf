#include <KxModel/KxVideoAnalysis.h>

#include <KxCore/KxBoundedQueue.h>
#include <KxCore/KxMemory.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxSubject/KxSubjectAnalyzer.h>
#include <KxSubject/KxSubjectFindings.h>

#include <QFileInfo>

#include <thread>

namespace
{

KxMotionSpeed SpeedOfMode(int mode)
{
    constexpr int fast = 8;
    constexpr int slow = 24;
    return mode == fast ? KxMotionSpeed::Fast : mode == slow ? KxMotionSpeed::Slow : KxMotionSpeed::Auto;
}

KxSubjectRequest RequestFor(const KxVideoFacts& video, const IKxAutoReframeParam& param, const QString& faceModelPath)
{
    KxSubjectRequest request;
    request.pictureWidthPx = video.resolution.width();
    request.pictureHeightPx = video.resolution.height();
    request.frameRate = video.frameRate.ToDouble();
    request.frameCount = video.frameCount;
    request.aspectWidth = param.targetSize().width();
    request.aspectHeight = param.targetSize().height();
    request.speed = SpeedOfMode(param.mode());
    request.faceModelPath = faceModelPath.toStdString();
    return request;
}

struct SmallPicture {
    qint64 frame = 0;
    QImage image;
};

} // namespace

class KxVideoAnalysis::Pipeline
{
public:
    Pipeline(KxVideoScanner& scanner, KxSubjectAnalyzer& analyzer, const KxCancelToken& cancel)
        : m_scanner(scanner)
        , m_analyzer(analyzer)
        , m_cancel(cancel)
    {
    }

    KxReadStatus Run(const std::function<void(int)>& onProgress)
    {
        std::thread finder([this] { Find(); });
        const KxReadStatus status = Decode(onProgress);
        m_queue.Close();
        finder.join();
        return status;
    }

    /// Why the analysis itself gave up; empty when it did not. After Run().
    const QString& Problem() const { return m_problem; }

private:
    KxReadStatus Decode(const std::function<void(int)>& onProgress)
    {
        const qint64 frameCount = m_scanner.Facts().video->frameCount;
        const cv::Size size = m_analyzer.WorkingSize();
        KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
        int reported = -1;
        KxVideoFrame picture;
        for (;;) {
            if (m_cancel.IsCancelled()) {
                return KxReadStatus::Cancelled;
            }
            const KxReadStatus status = m_scanner.Next(picture);
            if (status != KxReadStatus::Delivered) {
                return status;
            }
            if (m_analyzer.Wants(picture.Index())) {
                QImage image = scaler.Scale(picture, QSize(size.width, size.height), QImage::Format_BGR888);
                if (!image.isNull()) {
                    m_queue.Push({picture.Index(), std::move(image)});
                }
            }
            const int percent = static_cast<int>(qMin<qint64>(picture.Index() * 100 / frameCount, 99));
            if (percent > reported) {
                reported = percent;
                onProgress(percent);
            }
        }
    }

    void Find()
    {
        while (std::optional<SmallPicture> small = m_queue.Pop()) {
            if (m_cancel.IsCancelled() || !m_problem.isEmpty()) {
                continue;
            }
            const QImage& image = small->image;
            const cv::Mat view(image.height(), image.width(), CV_8UC3, const_cast<uchar*>(image.constBits()),
                               static_cast<std::size_t>(image.bytesPerLine()));
            Add(small->frame, view);
        }
    }

    void Add(qint64 frame, const cv::Mat& picture)
    {
        try {
            m_analyzer.AddPicture(frame, picture);
        } catch (const std::exception& problem) {
            m_problem = QString::fromUtf8(problem.what());
        }
    }

    KxVideoScanner& m_scanner;
    KxSubjectAnalyzer& m_analyzer;
    KxCancelToken m_cancel;
    KxBoundedQueue<SmallPicture> m_queue{32};
    QString m_problem;
};

KxVideoAnalysis::KxVideoAnalysis(std::unique_ptr<KxVideoScanner> scanner, const IKxAutoReframeParam& param,
                                 const QString& faceModelPath, const KxCancelToken& cancel)
    : m_scanner(std::move(scanner))
    , m_param(param)
    , m_faceModelPath(faceModelPath)
    , m_cancel(cancel)
{
}

KxVideoAnalysis::~KxVideoAnalysis() = default;

KxResult<std::unique_ptr<KxVideoAnalysis>> KxVideoAnalysis::Open(const QString& path, const IKxAutoReframeParam& param,
                                                                 const QString& faceModelPath,
                                                                 const KxCancelToken& cancel)
{
    using Opened = KxResult<std::unique_ptr<KxVideoAnalysis>>;
    if (param.targetSize().isEmpty()) {
        return Opened::Failure(
            QStringLiteral("The aspect ratio %1:%2 has a side that is not positive.")
                .arg(QString::number(param.targetSize().width()), QString::number(param.targetSize().height())));
    }
    KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(path, cancel);
    if (!scanner) {
        return Opened::Failure(scanner.Message());
    }
    return std::unique_ptr<KxVideoAnalysis>(new KxVideoAnalysis(std::move(*scanner), param, faceModelPath, cancel));
}

KxVideoAnalysis::Result KxVideoAnalysis::Run(const std::function<void(int percent)>& onProgress)
{
    Result result;
    const KxMediaFacts facts = m_scanner->Facts();
    KxSubjectRequest request = RequestFor(*facts.video, m_param, m_faceModelPath);
    request.wantsFindings = m_wantsFindings;
    KxSubjectAnalyzer analyzer(request);
    Pipeline pipeline(*m_scanner, analyzer, m_cancel);
    const KxReadStatus status = pipeline.Run(onProgress);
    const bool endedEarly = m_scanner->EndedEarly();
    // The decoder's buffers are the largest thing in memory: they go before the results of every frame are made.
    m_scanner.reset();
    KxMemory::ReturnUnused();
    if (status == KxReadStatus::Cancelled || m_cancel.IsCancelled()) {
        result.outcome = KxOutcome::Cancelled;
        return result;
    }

    const QString name = QFileInfo(facts.path).fileName();
    if (!pipeline.Problem().isEmpty()) {
        result.message = QStringLiteral("Cannot analyse %1: %2.").arg(name, pipeline.Problem());
        return result;
    }
    if (!analyzer.FaceModelProblem().empty()) {
        result.warnings += QString::fromStdString(analyzer.FaceModelProblem());
    }
    if (endedEarly) {
        result.warnings += QStringLiteral("%1 is cut off or damaged: it decodes only in part.").arg(name);
    }
    const std::vector<KxCropRect> crops = analyzer.Finish();
    result.crops.reserve(static_cast<int>(crops.size()));
    for (std::size_t i = 0; i < crops.size(); ++i) {
        const KxCropRect& crop = crops[i];
        result.crops.append(
            IKxAutoReframeResult(static_cast<qint64>(i), QRectF(crop.x, crop.y, crop.width, crop.height)));
    }
    if (m_wantsFindings) {
        result.findings = std::make_shared<KxSubjectFindings>(analyzer.Findings());
    }
    result.outcome = KxOutcome::Done;
    return result;
}
