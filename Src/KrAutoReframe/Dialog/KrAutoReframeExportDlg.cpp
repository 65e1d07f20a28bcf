#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxPushButton.h>

#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QSettings>

namespace
{

const QString SettingsGroup = QStringLiteral("Auto Reframe");
const QString OutputPathKey = QStringLiteral("OutputPath");
constexpr QSize FieldSizePx(219, 24);
constexpr int CaptionWidthPx = 100;
constexpr int LongestName = 42;
constexpr int PrimaryButton = 0;

QString ConfigFile()
{
    return QDir::fromNativeSeparators(KxConfig::GetKorviConfigFile());
}

KxLabel* MakeCaption(QWidget* parent)
{
    KxLabel* const caption = KxLabel::CreateLabel(parent, QString());
    caption->setFixedWidth(CaptionWidthPx);
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return caption;
}

} // namespace

KrAutoReframeExportDlg::KrAutoReframeExportDlg(QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
{
    InitUi();
    ConnectSignals();
    RetranslateUi();
}

KrAutoReframeExportDlg::~KrAutoReframeExportDlg() = default;

void KrAutoReframeExportDlg::InitUi()
{
    m_nameEdit = KxLineEdit::creartNormalLineEdit(this, FieldSizePx.height());
    m_nameEdit->setObjectName(QStringLiteral("KrAutoReframeExport_name"));
    m_nameEdit->setFixedSize(FieldSizePx);
    m_nameLabel = MakeCaption(this);
    m_pathEdit = KxOpenFileLineEdit::CreateOpenFileLineEdit(this);
    m_pathEdit->setObjectName(QStringLiteral("KrAutoReframeExport_folder"));
    m_pathEdit->setFixedSize(FieldSizePx);
    m_pathLabel = MakeCaption(this);
    m_exportButton = GetButtonBar()->AddPushButton_R(PrimaryButton, -1);
    m_exportButton->setObjectName(QStringLiteral("KrAutoReframeExport_export"));
    m_exportButton->setFixedWidth(104);
    m_nameEdit->SetFileNameValidator(true);
    m_nameEdit->setMaxLength(LongestName);
    m_pathEdit->SetText(LoadOutputPath());
    SetContentWidget(MakeForm());
    resize(480, 208);
}

QWidget* KrAutoReframeExportDlg::MakeForm()
{
    auto* const content = new QWidget(this);
    auto* const form = new QFormLayout(content);
    form->setSpacing(16);
    form->setContentsMargins(52, 0, 52, 0);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFormAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    form->setAlignment(Qt::AlignCenter);
    form->addRow(m_nameLabel, m_nameEdit);
    form->addRow(m_pathLabel, m_pathEdit);
    return content;
}

void KrAutoReframeExportDlg::ConnectSignals()
{
    connect(m_exportButton, &QAbstractButton::clicked, this, &KrAutoReframeExportDlg::slotExportButtonClicked);
    // The field may be empty while the user types another name, so it is checked at the end of editing.
    connect(m_nameEdit, &QLineEdit::editingFinished, this, &KrAutoReframeExportDlg::RestoreDefaultName);
    connect(m_pathEdit, &KxOpenFileLineEdit::sigTextChanged, this, &KrAutoReframeExportDlg::SaveOutputPath);
}

void KrAutoReframeExportDlg::RetranslateUi()
{
    SetTitleName(tr("Export to MP4"), false);
    m_exportButton->setText(tr("Export"));
    m_nameLabel->setText(tr("Name:"));
    m_pathLabel->setText(tr("Save to:"));
}

QString KrAutoReframeExportDlg::LoadOutputPath()
{
    m_defaultOutputDir = KxConfig::GetKorviOutputDirectory();
    if (!QFileInfo::exists(ConfigFile())) {
        return m_defaultOutputDir;
    }
    QSettings settings(ConfigFile(), QSettings::IniFormat);
    settings.beginGroup(SettingsGroup);
    const QString saved = settings.value(OutputPathKey).toString();
    return !saved.isEmpty() && QFileInfo(saved).isDir() ? saved : m_defaultOutputDir;
}

void KrAutoReframeExportDlg::SaveOutputPath(const QString& path) const
{
    QSettings settings(ConfigFile(), QSettings::IniFormat);
    settings.beginGroup(SettingsGroup);
    settings.setValue(OutputPathKey, path);
}

void KrAutoReframeExportDlg::RestoreDefaultName()
{
    if (m_nameEdit->text().trimmed().isEmpty()) {
        m_nameEdit->setText(m_defaultName);
    }
}

void KrAutoReframeExportDlg::SetDefaultName(const QString& name)
{
    m_defaultName = name;
    m_nameEdit->setText(name);
}

void KrAutoReframeExportDlg::SetResolution(const QSize& resolution)
{
    m_resolution = resolution;
}

void KrAutoReframeExportDlg::SetFrameRate(float framesPerSecond)
{
    m_frameRate = framesPerSecond;
}

void KrAutoReframeExportDlg::SetVideoBitRate(int bitsPerSecond)
{
    m_videoBitRate = bitsPerSecond;
}

void KrAutoReframeExportDlg::SetAudioBitRate(int bitsPerSecond)
{
    m_audioBitRate = bitsPerSecond;
}

void KrAutoReframeExportDlg::SetSrcResolution(const QSize& resolution)
{
    m_srcResolution = resolution;
}

void KrAutoReframeExportDlg::SetRatio(int width, int height)
{
    m_ratioWidth = width;
    m_ratioHeight = height;
}

void KrAutoReframeExportDlg::SetAnalysisInfo(int speed, int adjustFrames, int duration, const QString& fileFormat)
{
    m_speed = speed;
    m_adjustFrames = adjustFrames;
    m_duration = duration;
    m_fileFormat = fileFormat;
}

void KrAutoReframeExportDlg::SetSrcDuration(int duration)
{
    m_srcDuration = duration;
}

void KrAutoReframeExportDlg::SetMotionSpeed(int trackValue)
{
    m_motionSpeed = trackValue;
}

void KrAutoReframeExportDlg::SetTrackRatio(int trackRatio)
{
    m_trackRatio = trackRatio;
}

void KrAutoReframeExportDlg::SetEstimatedSize(qint64 bytes)
{
    m_estimatedSize = bytes;
}
