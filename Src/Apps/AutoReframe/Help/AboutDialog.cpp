#include <Apps/AutoReframe/Help/AboutDialog.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>
#include <KxWidgets/KxUIStyle.h>

#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>
#include <QTextTableCell>
#include <QVariant>

#include <cmath>
#include <numeric>
#include <vector>

namespace
{

constexpr int MarginPx = 24;
constexpr int GapPx = 14;
constexpr int IconPx = 56;
constexpr QSize LicencesPx(720, 320);

QString Licences()
{
    QFile file(QStringLiteral(":/AutoReframe/LICENCES.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Columns that share `widthPx`, those with more text being wider. A table that may choose is as wide as its longest
/// names, and scrolls sideways.
QVector<QTextLength> ColumnsOf(const QTextTable& table, double widthPx)
{
    std::vector<double> weights;
    for (int column = 0; column < table.columns(); ++column) {
        int characters = 1;
        for (int row = 0; row < table.rows(); ++row) {
            const QTextTableCell cell = table.cellAt(row, column);
            characters += cell.lastPosition() - cell.firstPosition();
        }
        weights.push_back(std::sqrt(characters));
    }
    const double all = std::accumulate(weights.begin(), weights.end(), 0.0);
    QVector<QTextLength> columns;
    for (const double weight : weights) {
        columns += QTextLength(QTextLength::FixedLength, std::floor(widthPx * weight / all));
    }
    return columns;
}

/// Headings of the text's size, and tables with thin lines that are `widthPx` wide.
void Format(QTextDocument& text, double widthPx)
{
    constexpr int paragraphPx = 8;
    constexpr int cellPx = 5;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        const bool isInTable = cursor.currentTable() != nullptr;
        QTextBlockFormat paragraph;
        paragraph.setTopMargin(isInTable ? 0 : paragraphPx);
        cursor.mergeBlockFormat(paragraph);
        if (block.blockFormat().headingLevel() > 0) {
            QTextCharFormat heading;
            heading.setProperty(QTextFormat::FontSizeAdjustment, 0);
            heading.setFontWeight(QFont::DemiBold);
            cursor.select(QTextCursor::BlockUnderCursor);
            cursor.mergeCharFormat(heading);
        }
    }
    for (QTextFrame* const frame : text.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(KxUIStyle::Colour(KxUIStyle::Role::FieldLine));
            format.setBorderCollapse(true);
            format.setCellPadding(cellPx);
            format.setTopMargin(paragraphPx);
            format.setColumnWidthConstraints(ColumnsOf(*table, widthPx));
            table->setFormat(format);
        }
    }
}

} // namespace

AboutDialog::AboutDialog(const QStringList& libraries, QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
    , m_libraries(libraries)
{
    setObjectName(QStringLiteral("AboutDialog"));
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    InitUi();
    connect(m_close, &QAbstractButton::clicked, this, &QDialog::accept);
    RetranslateUi();
}

AboutDialog::~AboutDialog() = default;

void AboutDialog::InitUi()
{
    auto* const content = new QWidget(this);
    auto* const icon = new QLabel(content);
    icon->setPixmap(QIcon(QStringLiteral(":/AutoReframe/auto-reframe.svg")).pixmap(IconPx, IconPx));
    m_name = KxLabel::CreateLabel(content, QString());
    m_name->setObjectName(QStringLiteral("AboutDialog_name"));
    m_name->setProperty("textRole", QStringLiteral("heading"));
    m_purpose = KxLabel::CreateLabel(content, QString());
    m_versions = KxLabel::CreateLabel(content, QString());
    m_versions->setObjectName(QStringLiteral("AboutDialog_versions"));
    m_versions->setProperty("textRole", QStringLiteral("muted"));
    m_versions->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_licences = new QTextBrowser(content);
    m_licences->setObjectName(QStringLiteral("AboutDialog_licences"));
    m_licences->setFixedSize(LicencesPx);
    m_licences->setOpenExternalLinks(true);
    m_licences->setTabChangesFocus(true);
    m_licences->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_close = GetButtonBar()->AddPushButton_R(0, -1);
    m_close->setObjectName(QStringLiteral("AboutDialog_close"));

    constexpr int lineGapPx = 4;
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(lineGapPx);
    texts->addWidget(m_name);
    texts->addWidget(m_purpose);
    texts->addWidget(m_versions);
    auto* const head = new QHBoxLayout;
    head->setSpacing(MarginPx);
    head->addWidget(icon, 0, Qt::AlignTop);
    head->addLayout(texts, 1);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(MarginPx, MarginPx, MarginPx, GapPx);
    column->setSpacing(GapPx);
    column->addLayout(head);
    column->addWidget(m_licences);
    SetContentWidget(content);
}

void AboutDialog::RetranslateUi()
{
    SetTitleName(tr("About Auto Reframe"), false);
    m_name->setText(tr("Auto Reframe %1").arg(QStringLiteral(KR_VERSION)));
    m_purpose->setText(tr("Keeps the subject of a video in the picture. Everything runs on this computer."));
    m_versions->setText(m_libraries.join(QStringLiteral(" · ")));
    m_licences->setAccessibleName(tr("Licences"));
    m_licences->setMarkdown(Licences());
    // What surrounds a table: the document's margins, the scroll bar and the outer lines.
    constexpr int aroundTablePx = 32;
    Format(*m_licences->document(), LicencesPx.width() - aroundTablePx);
    m_close->setText(tr("Close"));
}
