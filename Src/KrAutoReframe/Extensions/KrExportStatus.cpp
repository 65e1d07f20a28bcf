#include <KrAutoReframe/Extensions/KrExportStatus.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxUIStyle.h>

#include <QDir>
#include <QFileInfo>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QVariant>

namespace
{

using State = KrAutoReframeExport::State;

constexpr int ButtonHeightPx = 32;
constexpr int WidthPx = 225; ///< that of the button "Export"
constexpr int SideMarginPx = 11;
constexpr int TenThousandths = 10000;

KxLabel* MakeLabel(QWidget* parent, const char* name)
{
    KxLabel* const label = KxLabel::CreateLabel(parent, QString());
    label->setObjectName(QLatin1String(name));
    label->setProperty("textRole", QStringLiteral("muted"));
    label->hide();
    return label;
}

} // namespace

KrExportStatus::KrExportStatus(KrAutoReframeExports* exports, KrAutoReframeOutputs* outputs, QWidget* parent)
    : KxWidget(parent)
    , m_exports(exports)
    , m_outputs(outputs)
    , m_output(KxComboBox::CreateComboBox(this))
    , m_size(MakeLabel(this, "KrAutoReframe_outputSize"))
    , m_file(MakeLabel(this, "KrAutoReframe_exportFile"))
    , m_state(MakeLabel(this, "KrAutoReframe_exportState"))
    , m_progress(new QProgressBar(this))
    , m_showInFolder(KxPushButton::CreateSecondaryButton(this, ButtonHeightPx))
{
    setObjectName(QStringLiteral("KrAutoReframe_exportStatus"));
    m_output->setObjectName(QStringLiteral("KrAutoReframe_output"));
    m_output->setFixedWidth(WidthPx);
    m_output->hide();
    m_file->SetElideMode(Qt::ElideMiddle);
    m_state->setWordWrap(true);
    m_progress->setObjectName(QStringLiteral("KrAutoReframe_exportProgress"));
    m_progress->setRange(0, TenThousandths);
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(WidthPx);
    m_progress->hide();
    m_showInFolder->setObjectName(QStringLiteral("KrAutoReframe_showInFolder"));
    m_showInFolder->setFixedWidth(WidthPx);
    m_showInFolder->hide();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(SideMarginPx, 0, SideMarginPx, 0);
    column->setSpacing(8);
    column->addWidget(m_output, 0, Qt::AlignHCenter);
    column->addWidget(m_size);
    column->addSpacing(8);
    column->addWidget(m_file);
    column->addWidget(m_progress, 0, Qt::AlignHCenter);
    column->addWidget(m_state);
    column->addWidget(m_showInFolder, 0, Qt::AlignHCenter);
    if (m_exports != nullptr) {
        m_exports->ListenToExports([this](const KrAutoReframeExport& state) { Show(state); });
        connect(m_showInFolder, &QAbstractButton::clicked, this,
                [this] { m_exports->ShowInFolder(m_export.filePath); });
    }
    if (m_outputs != nullptr) {
        connect(m_output, qOverload<int>(&QComboBox::currentIndexChanged), this, &KrExportStatus::Choose);
    }
    RetranslateUi();
}

KrExportStatus::~KrExportStatus()
{
    if (m_exports != nullptr) {
        m_exports->ListenToExports({});
    }
}

void KrExportStatus::SetCrop(const QSizeF& crop, const QSize& cropSize)
{
    m_cropSize = cropSize;
    m_outputSize = cropSize;
    m_output->setVisible(m_outputs != nullptr && !cropSize.isEmpty());
    if (!m_output->isHidden()) {
        FillOutputs(crop);
    }
    ShowText();
}

void KrExportStatus::FillOutputs(const QSizeF& crop)
{
    const QSignalBlocker blocker(m_output);
    m_output->clear();
    for (const KrAutoReframeOutput& output : m_outputs->OutputsFor(crop, m_cropSize)) {
        m_output->addItem(output.name, output.size);
    }
    m_output->setCurrentIndex(m_outputs->ChosenOutput());
    m_outputSize = m_output->currentData().toSize();
}

void KrExportStatus::Choose(int index)
{
    m_outputs->ChooseOutput(index);
    m_outputSize = m_output->itemData(index).toSize();
    ShowText();
}

QString KrExportStatus::SizeText() const
{
    const bool isEnlarged = m_outputSize.width() > m_cropSize.width() || m_outputSize.height() > m_cropSize.height();
    const QString text = isEnlarged ? tr("Output: %1 × %2, enlarged") : tr("Output: %1 × %2");
    return text.arg(QString::number(m_outputSize.width()), QString::number(m_outputSize.height()));
}

void KrExportStatus::Show(const KrAutoReframeExport& state)
{
    m_export = state;
    const bool isUnfinished = state.state == State::Queued || state.state == State::Running;
    m_file->show();
    m_state->show();
    m_progress->setVisible(isUnfinished);
    m_progress->setValue(state.progress);
    m_showInFolder->setVisible(state.state == State::Done);
    KxUIStyle::SetTextRole(*m_state, state.state == State::Failed ? QStringLiteral("error") : QStringLiteral("muted"));
    ShowText();
}

void KrExportStatus::RetranslateUi()
{
    m_progress->setAccessibleName(tr("Progress of the export"));
    m_output->setAccessibleName(tr("Output"));
    m_output->setToolTip(tr("The size in which the video is exported."));
    m_size->setToolTip(tr("The size of the exported video in pixels."));
    m_showInFolder->setText(tr("Show in Folder"));
    m_showInFolder->setToolTip(tr("Opens the folder of the exported video."));
    ShowText();
}

void KrExportStatus::ShowText()
{
    m_size->setText(SizeText());
    m_size->setVisible(!m_outputSize.isEmpty());
    m_file->setText(QFileInfo(m_export.filePath).fileName());
    m_file->setToolTip(QDir::toNativeSeparators(m_export.filePath));
    m_state->setText(StateText());
}

QString KrExportStatus::StateText() const
{
    constexpr int perPercent = TenThousandths / 100;
    switch (m_export.state) {
    case State::Queued:
        return tr("Waiting in the export queue");
    case State::Running:
        return tr("Exporting: %1 %").arg(m_export.progress / perPercent);
    case State::Done:
        return m_export.message.isEmpty() ? tr("Exported") : m_export.message;
    case State::Cancelled:
        return tr("Export cancelled");
    case State::Failed:
        break;
    }
    return m_export.message;
}
