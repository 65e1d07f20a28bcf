#include <Apps/Reframe/ReframeJob.h>

#include <Apps/Reframe/AnalysisReport.h>
#include <Apps/Reframe/ContactSheet.h>
#include <Apps/Reframe/PreviewOverlay.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KxCore/KxInterrupt.h>
#include <KxModel/KxAutoReframeService.h>

#include <QBuffer>
#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeJob)
};

/// At most 1280 pixels wide, with even sides.
QSize PreviewSize(const QSize& source)
{
    constexpr int widestPx = 1280;
    const int width = std::min(source.width(), widestPx);
    const int height = qRound(static_cast<double>(source.height()) * width / source.width());
    return {width + width % 2, std::max(2, height + height % 2)};
}

} // namespace

KxResult<QByteArray> ReframeJob::ContactSheetFile(const char* format) const
{
    const KxResult<QImage> sheet = ContactSheet::Draw(m_input, Helper().GetDisplayResults(), KxInterrupt::Token());
    if (!sheet) {
        return KxResult<QByteArray>::Failure(sheet.Message());
    }
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    if (!sheet->save(&buffer, format)) {
        return KxResult<QByteArray>::Failure(Texts::tr("Cannot draw the contact sheet of %1.").arg(m_input));
    }
    return file;
}

ReframeJob::Ended ReframeJob::WriteReport()
{
    if (m_options.report.isEmpty()) {
        return std::nullopt;
    }
    const std::shared_ptr<const KxSubjectFindings> findings = KxAutoReframeService::Instance().LastFindings();
    const KxResult<QByteArray> sheet = ContactSheetFile("JPEG");
    if (!sheet) {
        return FailUnlessInterrupted(sheet.Message());
    }
    return WriteFile(m_targets->Report(), AnalysisReport::Format(Track(), *findings, *sheet), QStringLiteral("report"));
}

ReframeJob::Ended ReframeJob::WritePreview()
{
    if (m_options.preview.isEmpty()) {
        return std::nullopt;
    }
    if (m_options.PreviewIsVideo()) {
        return WritePreviewVideo();
    }
    const KxResult<QByteArray> sheet = ContactSheetFile("PNG");
    return sheet ? WriteFile(m_targets->Preview(), *sheet, QStringLiteral("preview"))
                 : FailUnlessInterrupted(sheet.Message());
}

ReframeJob::Ended ReframeJob::WritePreviewVideo()
{
    const CropTrack track = Track();
    const auto overlay = std::make_shared<const PreviewOverlay>(
        track.crops, track.frameRate, m_track ? nullptr : KxAutoReframeService::Instance().LastFindings());
    KxRenderSource source;
    source.path = m_input;
    source.overlay = [overlay](QImage& picture, qint64 frame) { overlay->Draw(picture, frame); };
    KxRenderSettings settings;
    settings.outputPath = m_targets->Preview();
    settings.existing = m_targets->WhenItExists(settings.outputPath);
    settings.resolution = PreviewSize(track.sourceSize);
    // Text and thin lines need a higher bit rate than pictures of that size usually do.
    settings.videoBitRate = 4000000;
    return Render(source, settings, ReframeReporter::Stage::Preview, QStringLiteral("preview"));
}
