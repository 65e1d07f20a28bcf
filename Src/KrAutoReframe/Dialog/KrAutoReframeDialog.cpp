#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KrAutoReframe/Engine/SendClickEvent.h>
#include <KrAutoReframe/Extensions/KrDialogExtension.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxMediaInfo.h>
#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxMainFormMinimizeMessage.h>
#include <KxWidgets/KxProgressDialog.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>
#include <KxWidgets/KxWidgetView.h>
#include <KxWidgets/StringOperation.h>

#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace
{

constexpr int MinimizeButton = 4;
constexpr int MaximizeButton = 16;
constexpr int CloseButton = 32;
constexpr QSize TitleSizePx(300, 24);
constexpr int LongestTitlePx = 268;

} // namespace

KrAutoReframeDialog::KrAutoReframeDialog(QWidget* parent)
    : KxFramelessDialog(tr("Auto Reframe"), parent, false, true)
{
    SetBottomBarVisible(false);
    GetTitleBar()->SetResizeble(true);
    GetTitleBar()->SetButtons(MinimizeButton | MaximizeButton | CloseButton);
    m_process = new KrAutoReframeProcess(this);
    m_contentWidget = new QWidget(this);
    m_propertyPanel = new KrAutoReframePropertyPanel(this);
    m_propertyPanel->SetPreviewEnabled(false);
    m_propertyPanel->SetParameterEnabled(false);
    m_playerView = new KrAutoReframePlayerView(ShareHelper(m_process->GetHelper()), this);
    m_playerView->setMinimumSize(920, 670);
    m_progressDialog = new KxProgressDialog(tr("Auto Reframe"), this);
    m_progressDialog->SetRange(0, 10000);
    m_progressDialog->hide();
    m_titleLabel = KxLabel::CreateLabel(GetTitleBar(), QString());
    m_titleLabel->setObjectName(QStringLiteral("KrAutoReframe_fileName"));
    m_titleLabel->setAlignment(Qt::AlignCenter);
    m_titleLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    InitLayout();
    ConnectSignal();
}

KrAutoReframeDialog::~KrAutoReframeDialog()
{
    // The player may still read the file and the task may still analyse it; both stop before the item is released.
    m_playerView->Pause();
    m_process->StopProcess();
    LeaveSource();
    // It watches the player's widgets, which would otherwise be destroyed first.
    delete Extension();
    releaseMediaItem(m_importedMedia);
}

void KrAutoReframeDialog::InitLayout()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_propertyPanel);
    row->addWidget(m_playerView);
    auto* const column = new QVBoxLayout(m_contentWidget);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    SetContentWidget(m_contentWidget);
}

void KrAutoReframeDialog::ConnectSignal()
{
    connect(GetTitleBar()->GetButton(MinimizeButton), &QAbstractButton::clicked, this, [this] { MinimizeHost(); });
    connect(GetTitleBar()->GetButton(CloseButton), &QAbstractButton::clicked, this,
            [] { SendClickEvent(QStringLiteral("close_window")); });
    connect(m_propertyPanel, &KrAutoReframePropertyPanel::sigImportFile, this,
            &KrAutoReframeDialog::slotOpenImportDialog);
    connect(m_propertyPanel, &KrAutoReframePropertyPanel::sigStartAnalysis, this,
            &KrAutoReframeDialog::slotStartAnalysis);
    connect(m_propertyPanel, &KrAutoReframePropertyPanel::sigPreviewModeChanged, this,
            &KrAutoReframeDialog::slotPreviewMode);
    connect(m_propertyPanel, &KrAutoReframePropertyPanel::sigExport, this, &KrAutoReframeDialog::slotExportToLocal);
    connect(m_process, &KrAutoReframeProcess::sigProcessProgress, this, &KrAutoReframeDialog::slotUpdateProgress);
    connect(m_process, &KrAutoReframeProcess::sigProcessFinished, this, &KrAutoReframeDialog::slotAnalysisFinished);
    connect(m_process, &KrAutoReframeProcess::sigProcessError, this,
            [this] { ShowInformation(tr("Analysis error. Please try again.")); });
    connect(m_progressDialog, &QDialog::rejected, this, [this] { HandleProgressRejected(); });
}

void KrAutoReframeDialog::MinimizeHost()
{
    const KxMainFormMinimizeMessage message(0);
    if (auto* const view = dynamic_cast<KxWidgetView*>(parentWidget())) {
        KxUIView::sendMessageToScene(view->scene(), message);
    }
}

void KrAutoReframeDialog::InitMediaItem(const QList<IKxAbstractMedia*>& media)
{
    m_playerView->Pause();
    m_videoMedia = nullptr;
    if (!media.isSharedWith(m_mediaList)) {
        m_mediaList = media;
    }
    for (IKxAbstractMedia* element : qAsConst(m_mediaList)) {
        auto* const item = dynamic_cast<IKxAbstractMediaItem*>(element);
        if (item != nullptr && item->mediaInfo()->hasVideoStream()) {
            m_videoMedia = item;
            break;
        }
    }
    if (m_videoMedia == nullptr) {
        return;
    }
    m_sourcePath = m_videoMedia->filePath();
    m_sourceSuffix = QFileInfo(m_sourcePath).suffix();
    LeaveSource();
    m_process->OpenMedia(m_videoMedia);
    ShowSourceIsReady();
    UpdateProjectName(QFileInfo(m_sourcePath).fileName());
}

void KrAutoReframeDialog::InitTimeline(IKxTimeline* timeline)
{
    m_playerView->Pause();
    if (timeline == nullptr) {
        return;
    }
    m_videoMedia = nullptr;
    m_sourcePath.clear();
    m_sourceSuffix = QFileInfo(m_sourcePath).suffix();
    LeaveSource();
    m_process->OpenTimeline(timeline);
    ShowSourceIsReady();
    UpdateProjectName(QFileInfo(m_sourcePath).fileName());
}

void KrAutoReframeDialog::SetExtensions(KrAutoReframeExtensions& extensions)
{
    Q_ASSERT(Extension() == nullptr && !HasSource());
    const auto analyze = [this](int width, int height, int mode) { StartAnalysis(width, height, mode); };
    new KrDialogExtension(extensions, {*m_process, *m_propertyPanel, *m_playerView, analyze}, this);
}

KrDialogExtension* KrAutoReframeDialog::Extension() const
{
    return findChild<KrDialogExtension*>(QString(), Qt::FindDirectChildrenOnly);
}

void KrAutoReframeDialog::LeaveSource()
{
    if (KrDialogExtension* const extension = Extension()) {
        extension->LeaveSource();
    }
}

void KrAutoReframeDialog::ShowSourceIsReady()
{
    m_propertyPanel->OnFileImported();
    m_propertyPanel->SetPreviewEnabled(false);
    m_propertyPanel->SetParameterEnabled(true);
}

void KrAutoReframeDialog::UpdateProjectName(const QString& fileName)
{
    if (fileName.isEmpty()) {
        return;
    }
    const QString base = QFileInfo(fileName).completeBaseName();
    const QString suffix = QFileInfo(fileName).suffix();
    const QString elided = StringOperation::GetElidedString(base, m_titleLabel->font(), LongestTitlePx, Qt::ElideRight);
    // The space separates the ellipsis from the dot of the suffix.
    const QString text = elided == base ? elided + QLatin1Char('.') + suffix : elided + QStringLiteral(" .") + suffix;
    m_titleLabel->setGeometry((width() - TitleSizePx.width()) / 2, (GetTitleBar()->height() - TitleSizePx.height()) / 2,
                              TitleSizePx.width(), TitleSizePx.height());
    m_titleLabel->setText(text);
}

QSize KrAutoReframeDialog::CalculateResolution(QSize source, const QRectF& cropRatio) const
{
    return KrExportParameters::EvenResolution(source, cropRatio);
}

void KrAutoReframeDialog::ShowInformation(const QString& text)
{
    KrMessageDialog::Infomation(text, this, KrStandardButton::Ok, QString(), QString(), QString(), false);
}

bool KrAutoReframeDialog::HasSource() const
{
    return m_process->GetHelper()->GetSourceTimeline() != nullptr;
}
