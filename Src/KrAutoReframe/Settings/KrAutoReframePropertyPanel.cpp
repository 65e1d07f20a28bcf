#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxToggleSwitch.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxUIStyle.h>

#include <QFrame>
#include <QIcon>
#include <QPixmap>
#include <QSignalBlocker>
#include <QStringList>
#include <QVBoxLayout>
#include <QVariant>

#include <utility>

namespace
{

constexpr int ColumnWidthPx = 248;
constexpr int ImportHeightPx = 81;
constexpr int ImportIconPx = 30;
constexpr int ButtonWidthPx = 225;
constexpr int ButtonHeightPx = 32;
// Moves a box closer to its caption.
constexpr int CaptionGapPx = -8;

} // namespace

KrAutoReframePropertyPanel::KrAutoReframePropertyPanel(QWidget* parent)
    : KxWidget(parent)
{
    setObjectName(QStringLiteral("KrAutoReframePropertyPanel"));
    InitUi();
    ConnectSignals();
    InitData();
    RetranslateUi();
}

KrAutoReframePropertyPanel::~KrAutoReframePropertyPanel() = default;

void KrAutoReframePropertyPanel::InitUi()
{
    m_importButton = KxToolButton::CreateToolButton(this, QString());
    m_replaceButton = KxToolButton::CreateToolButton(this, QString());
    m_importButton->setObjectName(QStringLiteral("KrAutoReframe_Import"));
    m_replaceButton->setObjectName(QStringLiteral("KrAutoReframe_Replace"));
    m_replaceButton->hide();
    m_importButton->show();

    m_aspectRatioLabel = KxLabel::CreateLabel(this, QString());
    m_motionSpeedLabel = KxLabel::CreateLabel(this, QString());
    m_aspectRatioLabel->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_aspectRatioLabel"));
    m_motionSpeedLabel->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_motionSpeedLabel"));

    m_previewSwitch = new KxToggleSwitch(this);
    m_previewSwitch->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_previewSwitch"));
    m_previewSwitch->setChecked(true);

    m_aspectRatioCombo = KxComboBox::CreateComboBox(this);
    m_motionSpeedCombo = KxComboBox::CreateComboBox(this);
    m_aspectRatioCombo->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_aspectRatio"));
    m_motionSpeedCombo->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_motionSpeed"));
    // A screen reader names a box by the label whose buddy it is.
    m_aspectRatioLabel->setBuddy(m_aspectRatioCombo);
    m_motionSpeedLabel->setBuddy(m_motionSpeedCombo);

    InitButtons();
    InitLayout();
    KxUIStyle::SetBGColorType(this, 5);
}

void KrAutoReframePropertyPanel::InitButtons()
{
    m_analyzeButton = KxPushButton::CreatePrimaryButton(this, ButtonHeightPx);
    m_restartButton = KxPushButton::CreateSecondaryButton(this, ButtonHeightPx);
    m_exportButton = KxPushButton::CreatePrimaryButton(this, ButtonHeightPx);
    m_analyzeButton->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_analyze"));
    m_restartButton->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_restart"));
    m_exportButton->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_export"));
    m_restartButton->hide();
    m_analyzeButton->show();

    // Room for the icon that the style sheet draws.
    QPixmap empty(ImportIconPx, ImportIconPx);
    empty.fill(Qt::transparent);
    for (KxToolButton* const button : {m_importButton, m_replaceButton}) {
        button->setFixedSize(ColumnWidthPx, ImportHeightPx);
        button->setIcon(QIcon(empty));
        button->setIconSize(empty.size());
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    }

    m_analyzeButton->SetAutoResizeText(false);
    m_restartButton->SetAutoResizeText(false);
    for (KxPushButton* const button : {m_analyzeButton, m_restartButton, m_exportButton}) {
        button->setFixedWidth(ButtonWidthPx);
    }
}

void KrAutoReframePropertyPanel::InitLayout()
{
    auto* const frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("KrAutoReframePropertyPanel_editFrame"));
    frame->setFixedWidth(ColumnWidthPx);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(m_importButton);
    layout->addWidget(m_replaceButton);
    layout->addWidget(frame);
    layout->addSpacing(8);
    layout->addWidget(m_exportButton, 0, Qt::AlignHCenter);
    layout->addStretch();

    auto* const settings = new QVBoxLayout(frame);
    settings->setContentsMargins(12, 16, 12, 16);
    settings->setSpacing(16);
    settings->addWidget(m_previewSwitch);
    settings->addWidget(m_aspectRatioLabel);
    settings->addSpacing(CaptionGapPx);
    settings->addWidget(m_aspectRatioCombo);
    settings->addWidget(m_motionSpeedLabel);
    settings->addSpacing(CaptionGapPx);
    settings->addWidget(m_motionSpeedCombo);
    settings->addWidget(m_analyzeButton);
    settings->addWidget(m_restartButton);
}

void KrAutoReframePropertyPanel::ConnectSignals()
{
    using Panel = KrAutoReframePropertyPanel;
    connect(m_importButton, &QAbstractButton::clicked, this, &Panel::sigImportFile);
    connect(m_replaceButton, &QAbstractButton::clicked, this, &Panel::sigImportFile);
    connect(m_exportButton, &QAbstractButton::clicked, this, &Panel::sigExport);
    connect(m_analyzeButton, &QAbstractButton::clicked, this, &Panel::sigStartAnalysis);
    connect(m_restartButton, &QAbstractButton::clicked, this, &Panel::sigStartAnalysis);
    connect(m_previewSwitch, &QAbstractButton::toggled, this, &Panel::sigPreviewModeChanged);
}

void KrAutoReframePropertyPanel::InitData()
{
    const QStringList ratios{QStringLiteral("9:16"), QStringLiteral("1:1"), QStringLiteral("16:9"),
                             QStringLiteral("4:3"),  QStringLiteral("4:5"), QStringLiteral("21:9")};
    for (const QString& ratio : ratios) {
        m_aspectRatioCombo->addItem(QIcon(), ratio, ratio);
    }
    m_motionSpeedCombo->addItem(QIcon(), tr("Auto"), 16);
    m_motionSpeedCombo->addItem(QIcon(), tr("Fast"), 8);
    m_motionSpeedCombo->addItem(QIcon(), tr("Slow"), 24);
}

void KrAutoReframePropertyPanel::RetranslateUi()
{
    m_importButton->setText(tr("Import"));
    m_replaceButton->setText(tr("Replace File"));
    m_previewSwitch->setText(tr("Adjust Frame"));
    m_aspectRatioLabel->setText(tr("Aspect Ratio"));
    m_motionSpeedLabel->setText(tr("Motion Speed"));
    m_analyzeButton->setText(tr("Analyze"));
    m_restartButton->setText(tr("AutoReframe_Restart"));
    m_exportButton->setText(tr("Export"));
}

void KrAutoReframePropertyPanel::GetParameters(int& ratioWidth, int& ratioHeight, int& motionSpeed) const
{
    const QStringList sides = m_aspectRatioCombo->currentData().toString().split(QLatin1Char(':'));
    ratioWidth = sides.value(0).toInt();
    ratioHeight = sides.value(1).toInt();
    motionSpeed = m_motionSpeedCombo->currentData().toInt();
}

void KrAutoReframePropertyPanel::SetParameters(int ratioWidth, int ratioHeight, int motionSpeed)
{
    const int ratio = m_aspectRatioCombo->findData(
        QStringLiteral("%1:%2").arg(QString::number(ratioWidth), QString::number(ratioHeight)));
    if (ratio >= 0) {
        m_aspectRatioCombo->setCurrentIndex(ratio);
    }
    const int speed = m_motionSpeedCombo->findData(motionSpeed);
    if (speed >= 0) {
        m_motionSpeedCombo->setCurrentIndex(speed);
    }
}

void KrAutoReframePropertyPanel::WhenParametersChange(QObject* context, const std::function<void()>& changed)
{
    for (KxComboBox* const combo : {m_aspectRatioCombo, m_motionSpeedCombo}) {
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), context, [changed] { changed(); });
    }
}

KxLabel* KrAutoReframePropertyPanel::CreateLine(const QString& name, const QString& role)
{
    KxLabel* const line = KxLabel::CreateLabel(this, QString());
    line->setObjectName(name);
    line->setProperty("textRole", role);
    line->setWordWrap(true);
    m_restartButton->parentWidget()->layout()->addWidget(line);
    line->hide();
    return line;
}

void KrAutoReframePropertyPanel::AddLine()
{
    m_hint = CreateLine(QStringLiteral("KrAutoReframePropertyPanel_hint"), QStringLiteral("hint"));
    m_fact = CreateLine(QStringLiteral("KrAutoReframePropertyPanel_shots"), QStringLiteral("muted"));
    m_fact->setMinimumHeight(m_fact->fontMetrics().height());
}

void KrAutoReframePropertyPanel::AddBelowExport(QWidget* widget)
{
    auto* const column = static_cast<QVBoxLayout*>(layout());
    column->insertWidget(column->indexOf(m_exportButton) + 1, widget);
    widget->show();
}

void KrAutoReframePropertyPanel::SetHint(const QString& text)
{
    ShowHint(text, QStringLiteral("hint"));
}

void KrAutoReframePropertyPanel::SetProgress(const QString& text)
{
    ShowHint(text, QStringLiteral("muted"));
}

void KrAutoReframePropertyPanel::ShowHint(const QString& text, const QString& role)
{
    KxUIStyle::SetTextRole(*m_hint, role);
    m_hint->setText(text);
    UpdateLine();
}

void KrAutoReframePropertyPanel::SetFact(const QString& text)
{
    m_fact->setText(text);
    m_keepsLine = !text.isNull();
    UpdateLine();
}

void KrAutoReframePropertyPanel::UpdateLine()
{
    const bool isHinting = !m_hint->text().isEmpty();
    m_hint->setVisible(isHinting);
    m_fact->setVisible(!isHinting && m_keepsLine);
}

int KrAutoReframePropertyPanel::MotionSpeedToTrackValue(int motionSpeed) const
{
    switch (m_motionSpeedCombo->findData(motionSpeed)) {
    case 0:
        return 3;
    case 1:
        return 1;
    case 2:
        return 2;
    default:
        return -1;
    }
}

void KrAutoReframePropertyPanel::OnFileImported()
{
    if (!m_notImported) {
        return;
    }
    m_replaceButton->show();
    m_importButton->hide();
    m_notImported = false;
}

void KrAutoReframePropertyPanel::SetParameterEnabled(bool isEnabled)
{
    m_restartButton->hide();
    m_analyzeButton->show();
    m_firstAnalysis = true;

    const QList<QWidget*> settings{m_aspectRatioLabel, m_aspectRatioCombo, m_motionSpeedLabel,
                                   m_motionSpeedCombo, m_analyzeButton,    m_restartButton};
    for (QWidget* const setting : settings) {
        setting->setEnabled(isEnabled);
    }
}

void KrAutoReframePropertyPanel::SetPreviewEnabled(bool isEnabled)
{
    if (!m_previewSwitch->isChecked()) {
        const QSignalBlocker blocker(m_previewSwitch);
        m_previewSwitch->setChecked(true);
    }
    m_previewSwitch->setEnabled(isEnabled);
    m_exportButton->setEnabled(isEnabled);
}

void KrAutoReframePropertyPanel::SetBusy(bool isBusy)
{
    for (QWidget* const control : std::exchange(m_disabledWhileBusy, {})) {
        control->setEnabled(true);
    }
    if (!isBusy) {
        return;
    }
    for (QWidget* const control : QList<QWidget*>{m_previewSwitch, m_analyzeButton, m_restartButton, m_exportButton}) {
        if (control->isEnabled()) {
            control->setEnabled(false);
            m_disabledWhileBusy.append(control);
        }
    }
}

void KrAutoReframePropertyPanel::OnAnalysisFinished()
{
    if (!m_firstAnalysis) {
        return;
    }
    const bool isRestartShown = !m_restartButton->isHidden();
    m_restartButton->setVisible(!isRestartShown);
    m_analyzeButton->setVisible(isRestartShown);
    m_firstAnalysis = false;
}
