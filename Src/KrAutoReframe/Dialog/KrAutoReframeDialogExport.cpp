#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KrAutoReframe/Engine/SendClickEvent.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxModel/IKxTimeline.h>
#include <KxModel/KxVBLMODEL.h>

#include <QFileInfo>

#include <cmath>

namespace
{

/// The number of an aspect ratio in usage reports. The host's conversion does not know 4:5, which has a number of its
/// own there.
int TrackRatio(int width, int height)
{
    constexpr int fourToFive = 5;
    const int type = KxVBLMODEL::toAspectRatioType(QSize(width, height));
    const bool isFourToFive = type == KxProjectAspectRatioUnknown && std::abs(0.8 - double(width) / height) < 1e-7;
    return isFourToFive ? fourToFive : type;
}

/// Of the video that is exported; defaults where it has no such stream.
struct SourceFacts {
    QSize resolution;
    double frameRate = KrExportParameters::DefaultFrameRate;
    int videoBitRate = KrExportParameters::DefaultVideoBitRate;
    int audioBitRate = KrExportParameters::DefaultAudioBitRate;
};

SourceFacts FactsOf(const IKxAbstractMediaItem& media, const KrAutoReframeHelper& helper)
{
    SourceFacts facts;
    const IKxMediaInfo* const info = media.mediaInfo();
    const auto* const video = dynamic_cast<const IKxVideoMediaInfo*>(info);
    if (info->hasVideoStream() && video != nullptr) {
        facts.resolution = helper.GetSourceTimeline()->projectSettings().resolution;
        facts.frameRate = KrExportParameters::FrameRate(video->frameRate());
        facts.videoBitRate = video->bitRate();
    }
    const auto* const audio = dynamic_cast<const IKxAudioMediaInfo*>(info);
    if (info->hasAudioStream() && audio != nullptr) {
        facts.audioBitRate = audio->bitRate(media.audioStreamIndex());
    }
    return facts;
}

} // namespace

void KrAutoReframeDialog::slotExportToLocal()
{
    if (m_videoMedia == nullptr) {
        return;
    }
    m_playerView->Pause();
    const std::shared_ptr<KrAutoReframeHelper>& helper = m_process->GetHelper();
    const QList<IKxAutoReframeResult> results = helper->GetResults();
    if (results.isEmpty()) {
        return;
    }

    const SourceFacts source = FactsOf(*m_videoMedia, *helper);
    const KrAutoReframeAnalyzeParam param = m_process->GetParam();
    const QRectF shape = Extension() != nullptr ? KrExportParameters::ShapeOfResult(results, source.resolution,
                                                                                    QSize(param.width, param.height))
                                                : results.first().cropRect();
    const QSize resolution = CalculateResolution(source.resolution, shape);
    SendClickEvent(QStringLiteral("export_btn"));

    KrAutoReframeExportDlg dialog(this);
    dialog.SetDefaultName(QFileInfo(m_sourcePath).baseName());
    dialog.SetResolution(resolution);
    dialog.SetFrameRate(static_cast<float>(source.frameRate));
    dialog.SetVideoBitRate(KrExportParameters::VideoBitRate(source.videoBitRate));
    dialog.SetAudioBitRate(KrExportParameters::AudioBitRate(source.audioBitRate));
    dialog.SetSrcResolution(source.resolution);
    dialog.SetRatio(param.width, param.height);
    dialog.SetAnalysisInfo(param.mode, helper->GetEditPointFrames().size(), helper->GetDuration(), m_sourceSuffix);
    dialog.SetSrcDuration(m_videoMedia->duration());
    dialog.SetMotionSpeed(m_propertyPanel->MotionSpeedToTrackValue(param.mode));
    dialog.SetTrackRatio(TrackRatio(param.width, param.height));
    if (dialog.DoModal() == 0) {
        SendClickEvent(QStringLiteral("tomp4_close_window"));
        return;
    }
    SendClickEvent(QStringLiteral("tomp4_export_btn"));

    const QVariant record = dialog.GetExportInfo();
    IKxTimeline* const timeline = helper->GetWorkTimeline();
    KxProjectSettings settings = timeline->projectSettings();
    settings.resolution = resolution;
    settings.aspectRatioType = KxVBLMODEL::toAspectRatioType(QSize(param.width, param.height));
    timeline->setProjectSettings(settings);
    Q_EMIT sigExportToLocal(timeline, m_mediaList, record);
}
