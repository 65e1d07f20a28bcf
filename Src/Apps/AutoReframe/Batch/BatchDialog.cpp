#include <Apps/AutoReframe/Batch/BatchDialog.h>

#include <Apps/AutoReframe/Library/MediaText.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVariant>

#include <algorithm>
#include <array>

namespace
{

constexpr int WidthPx = 560;

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
constexpr int HeightPx = 2160;

QVariant SizeData(int shortSidePx, int heightPx)
{
    return QSize(shortSidePx, heightPx);
}

} // namespace

BatchDialog::BatchDialog(QList<BatchVideo> videos, const BatchSettings& initial, OutputNames::Unique::IsTaken isTaken,
                         QWidget* parent)
    : SaveDialog(QStringLiteral("BatchDialog"), parent)
    , m_videos(std::move(videos))
    , m_isTaken(std::move(isTaken))
{
    InitUi();
    InitLayout();
    FillCombos();
    Fill(initial);
    for (const QCheckBox* const ratio : qAsConst(m_ratios)) {
        connect(ratio, &QCheckBox::toggled, this, &BatchDialog::ShowState);
    }
    for (const KxComboBox* const combo : {m_speed, m_size}) {
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this, &BatchDialog::ShowState);
    }
    RetranslateUi();
}

BatchDialog::~BatchDialog() = default;

void BatchDialog::InitUi()
{
    m_ratiosCaption = MakeCaption();
    for (const Ratio& ratio : Ratios) {
        auto* const box = new QCheckBox(this);
        box->setObjectName(QStringLiteral("BatchDialog_%1x%2")
                               .arg(QString::number(ratio.aspect.width()), QString::number(ratio.aspect.height())));
        m_ratios += box;
    }
    m_speedCaption = MakeCaption();
    m_speed = KxComboBox::CreateComboBox(this);
    m_speed->setObjectName(QStringLiteral("BatchDialog_speed"));
    m_sizeCaption = MakeCaption();
    m_size = KxComboBox::CreateComboBox(this);
    m_size->setObjectName(QStringLiteral("BatchDialog_size"));
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
    auto* const ratios = new QVBoxLayout;
    constexpr int ratiosGapPx = 10;
    ratios->setSpacing(ratiosGapPx);
    ratios->addWidget(m_ratiosCaption);
    ratios->addLayout(MakeRatios());
    auto* const combos = new QHBoxLayout;
    combos->setSpacing(GapPx);
    combos->addWidget(WithCaption(m_speedCaption, m_speed), 1);
    combos->addWidget(WithCaption(m_sizeCaption, m_size), 1);
    QVBoxLayout* const column = MakeColumn();
    column->addLayout(ratios);
    column->addLayout(combos);
    column->addWidget(NameRow());
    constexpr int messageLines = 2;
    ShowColumn(column, messageLines, WidthPx);
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
    m_size->addItem(tr("As large as the crop"), SizeData(0, 0));
    for (const int sidePx : ShortSidesPx) {
        m_size->addItem(tr("Shorter side %1 pixels").arg(sidePx), SizeData(sidePx, 0));
    }
    m_size->addItem(tr("%1 pixels high").arg(HeightPx), SizeData(0, HeightPx));
    m_speed->setCurrentIndex(std::max(0, speed));
    m_size->setCurrentIndex(std::max(0, size));
}

void BatchDialog::Fill(const BatchSettings& settings)
{
    for (int i = 0; i < m_ratios.size(); ++i) {
        m_ratios.at(i)->setChecked(settings.aspects.contains(Ratios[static_cast<size_t>(i)].aspect));
    }
    m_speed->setCurrentIndex(std::max(0, m_speed->findData(settings.speed)));
    m_size->setCurrentIndex(std::max(0, m_size->findData(SizeData(settings.shortSidePx, settings.heightPx))));
    SetFileName(settings.pattern);
    SetFolder(settings.folder);
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
    settings.shortSidePx = m_size->currentData().toSize().width();
    settings.heightPx = m_size->currentData().toSize().height();
    settings.pattern = FileName();
    settings.folder = Folder();
    return settings;
}

KxError BatchDialog::Problem() const
{
    const BatchSettings settings = Settings();
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

QString BatchDialog::Example() const
{
    const BatchSettings settings = Settings();
    // Asking the disk for thousands of files at every key would take too long.
    constexpr int examples = 3;
    QStringList names;
    for (const PlannedExport& planned : settings.PlanFor(m_videos.mid(0, examples), m_isTaken)) {
        names += QFileInfo(planned.outputPath).fileName();
    }
    const int count = settings.CountFor(m_videos);
    const QString text = settings.EnlargesAnyOf(m_videos)
                             ? tr("%n files, enlarged beyond their crops: %1", nullptr, count)
                             : tr("%n files: %1", nullptr, count);
    const auto naming = [&](int shown) {
        const QString more = count > shown ? QStringLiteral(", …") : QString();
        return text.arg(names.mid(0, shown).join(QStringLiteral(", ")) + more);
    };
    int shown = std::min(examples, names.size());
    while (shown > 1 && !Fits(naming(shown))) {
        --shown;
    }
    if (shown == 1 && !Fits(naming(shown))) {
        names.first() = InOneLine(names.first());
    }
    return naming(shown);
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
    SetNameTexts(tr("File Name, with %1").arg(OutputNames::Placeholders().join(QStringLiteral(", "))),
                 tr("What stands in braces is replaced for each file."));
    SetFolderToolTip(tr("The folder for the exported videos"));
    SetAcceptText(tr("Reframe All"));
    FillCombos();
    SaveDialog::RetranslateUi();
}
