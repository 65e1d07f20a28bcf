#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Engine/SendClickEvent.h>
#include <KrAutoReframe/Extensions/KrDialogExtension.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KxProgressDialog.h>

#include <QPointer>

namespace
{

/// The number of the analysis among the host's algorithms.
constexpr int AutoReframeAlgorithm = 4;

/// Once per process: if the notice about a weak machine was shown, the next attempt is allowed.
bool unsupportedNoticeWasRequested = false;

} // namespace

void KrAutoReframeDialog::slotStartAnalysis()
{
    m_playerView->Pause();
    // The misspelling is part of the event's name: earlier reports are stored under it.
    SendClickEvent(QStringLiteral("anlyze_btn"));
    int width = 0;
    int height = 0;
    int mode = 0;
    m_propertyPanel->GetParameters(width, height, mode);
    StartAnalysis(width, height, mode);
}

bool KrAutoReframeDialog::IsRefusedAsUnsupported()
{
    if (unsupportedNoticeWasRequested || KxConfig::Instance().algorithmEnabled(AutoReframeAlgorithm)) {
        return false;
    }
    Q_EMIT sigShowUnsupportDlg();
    unsupportedNoticeWasRequested = true;
    return true;
}

void KrAutoReframeDialog::StartAnalysis(int width, int height, int mode)
{
    if (IsRefusedAsUnsupported()) {
        return;
    }
    if (KrDialogExtension* const extension = Extension()) {
        extension->StopGrowth();
    }
    switch (m_process->StartAnalyze(width, height, mode)) {
    case 0:
        break;
    case 1:
        ShowInformation(tr("This video is too short. Please try a different video."));
        return;
    case 3:
        ShowInformation(
            tr("You've chosen the same aspect ratio as the original video. Please select a different aspect ratio."));
        return;
    case 4:
        ShowInformation(tr("Analysis error. Please try again."));
        return;
    default:
        return;
    }
    m_progressDialog->SetProgressTitle(tr("Converting video. Please wait..."), QStringLiteral("None"));
    slotUpdateProgress(0);
    if (KrDialogExtension* const extension = Extension()) {
        const QPointer<KrAutoReframeDialog> self(this);
        if (extension->EndsSoon() || self.isNull() || extension->ShowsGrowth()) {
            return;
        }
    }
    m_progressDialog->exec();
}

void KrAutoReframeDialog::slotUpdateProgress(int progress) const
{
    if (progress < 0) {
        return;
    }
    m_progressDialog->SetProgress(progress);
    m_progressDialog->SetInfoText(QStringLiteral("%1%").arg(progress / 100, 0, 10, QLatin1Char(' ')), QString(),
                                  Qt::AlignLeft | Qt::AlignVCenter);
}

void KrAutoReframeDialog::slotAnalysisFinished(bool success)
{
    m_progressDialog->hide();
    KrDialogExtension* const extension = Extension();
    const bool staysAtFrame = extension != nullptr && extension->StaysAtFrame();
    if (!success) {
        return;
    }
    if (!(staysAtFrame ? m_playerView->ShowResultsAtFrame() : m_playerView->SwitchTimeline(false, true))) {
        return;
    }
    m_propertyPanel->SetPreviewEnabled(true);
    m_propertyPanel->OnAnalysisFinished();
    if (extension != nullptr) {
        extension->ShowResults();
    }
    if (!staysAtFrame) {
        m_playerView->Play();
    }
}

void KrAutoReframeDialog::slotPreviewMode(bool checked)
{
    m_playerView->SwitchTimeline(!checked, false);
}

void KrAutoReframeDialog::HandleProgressRejected()
{
    m_process->StopProcess();
    const bool byCancelButton = m_progressDialog->GetCloseReason() == KxProgressDialog::CancelButton;
    SendClickEvent(byCancelButton ? QStringLiteral("convert_cancel_btn") : QStringLiteral("convert_close_window"));
}
