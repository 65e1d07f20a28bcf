#include <Apps/AutoReframe/Batch/BatchDialog.h>

#include <Apps/AutoReframe/Batch/DialogFields.h>
#include <Apps/AutoReframe/Library/MediaText.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVariant>

#include <array>

namespace
{

constexpr int WidthPx = 560;
constexpr int MarginPx = 24;
constexpr int GapPx = 18;
constexpr int CaptionGapPx = 6;

struct Ratio {
    QSize aspect;
    const char* purpose;
};
const std::array<Ratio, 6> Ratios{{{QSize(9, 16), QT_TRANSLATE_NOOP("BatchDialog", "Shorts, Reels, Stories")},
                                   {QSize(4, 5), QT_TRANSLATE_NOOP("BatchDialog", "Feed, portrait")},
                                   {QSize(1, 1), QT_TRANSLATE_NOOP("BatchDialog", "Feed, square")},
                                   {QSize(21, 9), QT_TRANSLATE_NOOP("BatchDialog", "Cinema")},
                                   {QSize(16, 9), QT_TRANSLATE_NOOP("BatchDialog", "Widescreen")},
                                   {QSize(4, 3), QT_TRANSLATE_NOOP("BatchDialog", "Classic television")}}};
constexpr std::array<int, 4> ShortSidesPx{720, 1080, 1440, 2160};

} // namespace

BatchDialog::BatchDialog(QList<BatchVideo> videos, const BatchSettings& initial, OutputNames::Unique::IsTaken isTaken,
                         QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
    , m_videos(std::move(videos))
    , m_isTaken(std::move(isTaken))
{
    setObjectName(QStringLiteral("BatchDialog"));
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    InitUi();
    InitLayout();
    FillCombos();
    Fill(initial);
    for (const QCheckBox* const ratio : qAsConst(m_ratios)) {
        connect(ratio, &QCheckBox::toggled, this, &BatchDialog::ShowExample);
    }
    connect(m_speed, qOverload<int>(&QComboBox::currentIndexChanged), this, &BatchDialog::ShowExample);
    connect(m_pattern, &QLineEdit::textChanged, this, &BatchDialog::ShowExample);
    connect(m_folder, &KxOpenFileLineEdit::sigTextChanged, this, &BatchDialog::ShowExample);
    connect(m_start, &QAbstractButton::clicked, this, &BatchDialog::HandleStart);
    connect(m_cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    RetranslateUi();
}

BatchDialog::~BatchDialog() = default;

void BatchDialog::InitUi()
{
    m_ratiosCaption = DialogFields::MakeCaption(this);
    for (const Ratio& ratio : Ratios) {
        auto* const box = new QCheckBox(this);
        box->setObjectName(QStringLiteral("BatchDialog_%1x%2")
                               .arg(QString::number(ratio.aspect.width()), QString::number(ratio.aspect.height())));
        m_ratios += box;
    }
    m_speedCaption = DialogFields::MakeCaption(this);
    m_speed = KxComboBox::CreateComboBox(this);
    m_speed->setObjectName(QStringLiteral("BatchDialog_speed"));
    m_sizeCaption = DialogFields::MakeCaption(this);
    m_size = KxComboBox::CreateComboBox(this);
    m_size->setObjectName(QStringLiteral("BatchDialog_size"));
    m_patternCaption = DialogFields::MakeCaption(this);
    m_pattern = KxLineEdit::creartNormalLineEdit(this, DialogFields::FieldHeightPx);
    m_pattern->setObjectName(QStringLiteral("BatchDialog_pattern"));
    m_pattern->SetFileNameValidator(true);
    m_folderCaption = DialogFields::MakeCaption(this);
    m_folder = KxOpenFileLineEdit::CreateOpenFileLineEdit(this);
    m_folder->setObjectName(QStringLiteral("BatchDialog_folder"));
    m_folder->setFixedHeight(DialogFields::FieldHeightPx);
    m_example = KxLabel::CreateLabel(this, QString());
    m_example->setObjectName(QStringLiteral("BatchDialog_example"));
    m_example->setWordWrap(true);
    m_cancel = GetButtonBar()->AddPushButton_R(1, -1);
    m_cancel->setObjectName(QStringLiteral("BatchDialog_cancel"));
    m_start = GetButtonBar()->AddPushButton_R(0, -1);
    m_start->setObjectName(QStringLiteral("BatchDialog_start"));
}

QLayout* BatchDialog::MakeRatios()
{
    constexpr int rows = 3;
    constexpr int rowGapPx = 10;
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(GapPx);
    grid->setVerticalSpacing(rowGapPx);
    for (int i = 0; i < m_ratios.size(); ++i) {
        grid->addWidget(m_ratios.at(i), i % rows, i / rows);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

void BatchDialog::InitLayout()
{
    auto* const content = new QWidget(this);
    auto* const ratios = new QVBoxLayout;
    constexpr int ratiosGapPx = 10;
    ratios->setSpacing(ratiosGapPx);
    ratios->addWidget(m_ratiosCaption);
    ratios->addLayout(MakeRatios());
    auto* const combos = new QHBoxLayout;
    combos->setSpacing(GapPx);
    combos->addWidget(DialogFields::WithCaption(m_speedCaption, m_speed, this), 1);
    combos->addWidget(DialogFields::WithCaption(m_sizeCaption, m_size, this), 1);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(MarginPx, MarginPx, MarginPx, CaptionGapPx);
    column->setSpacing(GapPx);
    column->addLayout(ratios);
    column->addLayout(combos);
    column->addWidget(DialogFields::WithCaption(m_patternCaption, m_pattern, this));
    column->addWidget(DialogFields::WithCaption(m_folderCaption, m_folder, this));
    column->addWidget(m_example);
    // Two lines, so that the dialog does not change its size while the person types.
    m_example->setFixedHeight(2 * m_example->fontMetrics().lineSpacing() + 2);
    m_example->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    SetContentWidget(content);
    setFixedWidth(WidthPx);
}

void BatchDialog::FillCombos()
{
    constexpr int automatic = 16;
    constexpr int fast = 8;
    constexpr int slow = 24;
    const QSignalBlocker speedBlocker(m_speed);
    const QSignalBlocker sizeBlocker(m_size);
    const int speed = m_speed->currentIndex();
    const int size = m_size->currentIndex();
    m_speed->clear();
    m_speed->addItem(tr("Auto"), automatic);
    m_speed->addItem(tr("Slow"), slow);
    m_speed->addItem(tr("Fast"), fast);
    m_size->clear();
    m_size->addItem(tr("As large as the crop"), 0);
    for (const int sidePx : ShortSidesPx) {
        m_size->addItem(tr("Shorter side %1 pixels").arg(sidePx), sidePx);
    }
    m_speed->setCurrentIndex(std::max(0, speed));
    m_size->setCurrentIndex(std::max(0, size));
}

void BatchDialog::Fill(const BatchSettings& settings)
{
    for (int i = 0; i < m_ratios.size(); ++i) {
        m_ratios.at(i)->setChecked(settings.aspects.contains(Ratios[static_cast<size_t>(i)].aspect));
    }
    m_speed->setCurrentIndex(std::max(0, m_speed->findData(settings.speed)));
    m_size->setCurrentIndex(std::max(0, m_size->findData(settings.shortSidePx)));
    m_pattern->setText(settings.pattern);
    m_folder->SetText(QDir::toNativeSeparators(settings.folder));
}

BatchSettings BatchDialog::Settings() const
{
    BatchSettings settings;
    settings.aspects.clear();
    for (int i = 0; i < m_ratios.size(); ++i) {
        if (m_ratios.at(i)->isChecked()) {
            settings.aspects += Ratios[static_cast<size_t>(i)].aspect;
        }
    }
    settings.speed = m_speed->currentData().toInt();
    settings.shortSidePx = m_size->currentData().toInt();
    settings.pattern = m_pattern->text().trimmed();
    settings.folder = QDir::cleanPath(QDir::fromNativeSeparators(m_folder->Text().trimmed()));
    return settings;
}

KxError BatchDialog::Problem(const BatchSettings& settings) const
{
    if (settings.aspects.isEmpty()) {
        return tr("Choose an aspect ratio.");
    }
    if (const KxError problem = OutputNames::Problem(settings.pattern)) {
        return problem;
    }
    if (!QDir::isAbsolutePath(settings.folder)) {
        return tr("Choose a folder.");
    }
    if (settings.CountFor(m_videos) == 0) {
        return tr("The selected videos have this aspect ratio already.");
    }
    return std::nullopt;
}

QString BatchDialog::Example(const BatchSettings& settings) const
{
    // Asking the disk for thousands of files at every key would take too long.
    constexpr int examples = 3;
    QStringList names;
    for (const PlannedExport& planned : settings.PlanFor(m_videos.mid(0, examples), m_isTaken)) {
        names += QFileInfo(planned.outputPath).fileName();
    }
    const int count = settings.CountFor(m_videos);
    const QString more = count > examples ? QStringLiteral(", …") : QString();
    return tr("%n files: %1", nullptr, count).arg(names.mid(0, examples).join(QStringLiteral(", ")) + more);
}

void BatchDialog::ShowExample()
{
    const BatchSettings settings = Settings();
    const KxError problem = Problem(settings);
    m_start->setEnabled(!problem);
    DialogFields::ShowText(*m_example, problem ? *problem : Example(settings), problem.has_value());
}

void BatchDialog::HandleStart()
{
    const QString folder = Settings().folder;
    if (QDir().mkpath(folder) && QFileInfo(folder).isWritable()) {
        accept();
        return;
    }
    DialogFields::ShowText(*m_example, tr("Cannot write to the folder %1.").arg(QDir::toNativeSeparators(folder)),
                           true);
    m_folder->setFocus();
}

void BatchDialog::RetranslateUi()
{
    SetTitleName(tr("Reframe %n Videos", nullptr, m_videos.size()), false);
    m_ratiosCaption->setText(tr("Aspect Ratios"));
    for (int i = 0; i < m_ratios.size(); ++i) {
        const Ratio& ratio = Ratios[static_cast<size_t>(i)];
        m_ratios.at(i)->setText(QStringLiteral("%1 · %2").arg(MediaText::Aspect(ratio.aspect), tr(ratio.purpose)));
    }
    m_speedCaption->setText(tr("Motion Speed"));
    m_speed->setToolTip(tr("How readily the crop follows the subject"));
    m_sizeCaption->setText(tr("Output Size"));
    m_size->setToolTip(tr("The size of the exported videos"));
    m_patternCaption->setText(tr("File Name, with %1").arg(OutputNames::Placeholders().join(QStringLiteral(", "))));
    m_pattern->setToolTip(tr("What stands in braces is replaced for each file."));
    m_folderCaption->setText(tr("Save To"));
    m_folder->setToolTip(tr("The folder for the exported videos"));
    m_cancel->setText(tr("Cancel"));
    m_start->setText(tr("Reframe All"));
    FillCombos();
    ShowExample();
}
