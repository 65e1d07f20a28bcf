#include <Apps/AutoReframe/Help/AboutDialog.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>
#include <KxWidgets/KxUIStyle.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QIcon>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextTable>
#include <QTextTableCell>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

constexpr int MarginPx = 24;
constexpr int GapPx = 14;
constexpr int IconPx = 56;
constexpr QSize LicencesPx(720, 320);

/// Names of files and packages in tables, which may be wider than their columns, can be broken within.
QString Licences()
{
    QFile file(QStringLiteral(":/AutoReframe/LICENCES.md"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (QString& line : lines) {
        if (line.startsWith(QLatin1Char('|'))) {
            static const QRegularExpression inside(QStringLiteral("(?<=\\w)([-_./])(?=\\w)"));
            line.replace(inside, QStringLiteral("\\1\u200b"));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

constexpr int CellPx = 5;

double LongestWordPx(const QTextBlock& block)
{
    double longest = 0.0;
    for (auto part = block.begin(); part != block.end(); ++part) {
        const QFontMetricsF metrics(part.fragment().charFormat().font());
        static const QRegularExpression between(QStringLiteral("[ \u200b]"));
        for (const QString& word : part.fragment().text().split(between)) {
            longest = std::max(longest, metrics.horizontalAdvance(word));
        }
    }
    return longest;
}

/// What a column needs, and how much text it has.
struct Column {
    double leastPx = 0.0;
    double weight = 1.0;
};

Column ColumnOf(const QTextTable& table, int index)
{
    Column column;
    double characters = 1.0;
    for (int row = 0; row < table.rows(); ++row) {
        const QTextTableCell cell = table.cellAt(row, index);
        characters += cell.lastPosition() - cell.firstPosition();
        for (auto block = cell.begin(); block != cell.end(); ++block) {
            column.leastPx = std::max(column.leastPx, LongestWordPx(block.currentBlock()));
        }
    }
    column.leastPx += 2.0 * CellPx;
    column.weight = std::sqrt(characters);
    return column;
}

/// Columns that fill `widthPx`: each has room for its longest word, and those with more text get more of the rest. A
/// table that may choose is wider than its place.
QVector<QTextLength> ColumnsOf(const QTextTable& table, double widthPx)
{
    std::vector<Column> columns;
    // The lines around each cell are not in the width of its column.
    constexpr double linesPx = 3.0;
    double restPx = widthPx - linesPx * (table.columns() + 1);
    double weights = 0.0;
    for (int i = 0; i < table.columns(); ++i) {
        columns.push_back(ColumnOf(table, i));
        restPx -= columns.back().leastPx;
        weights += columns.back().weight;
    }
    QVector<QTextLength> lengths;
    for (const Column& column : columns) {
        const double share = std::max(restPx, 0.0) * column.weight / weights;
        lengths += QTextLength(QTextLength::FixedLength, std::floor(column.leastPx + share));
    }
    return lengths;
}

QVector<QTextTable*> TablesOf(const QTextDocument& text)
{
    QVector<QTextTable*> tables;
    for (QTextFrame* const frame : text.rootFrame()->childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(frame)) {
            tables += table;
        }
    }
    return tables;
}

/// Headings of the text's size, and tables with thin lines.
void Format(QTextDocument& text)
{
    constexpr int paragraphPx = 8;
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
    for (QTextTable* const table : TablesOf(text)) {
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(KxUIStyle::Colour(KxUIStyle::Role::FieldLine));
        format.setBorderCollapse(true);
        format.setCellPadding(CellPx);
        format.setTopMargin(paragraphPx);
        table->setFormat(format);
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
    m_licences->viewport()->installEventFilter(this);
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

void AboutDialog::FitTables()
{
    const QTextDocument& text = *m_licences->document();
    const double widthPx = m_licences->viewport()->width() - 2.0 * text.documentMargin();
    for (QTextTable* const table : TablesOf(text)) {
        QTextTableFormat format = table->format();
        format.setColumnWidthConstraints(ColumnsOf(*table, widthPx));
        table->setFormat(format);
    }
}

bool AboutDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_licences->viewport() && event->type() == QEvent::Resize) {
        FitTables();
    }
    return KxFramelessDialog::eventFilter(watched, event);
}

void AboutDialog::RetranslateUi()
{
    SetTitleName(tr("About Auto Reframe"), false);
    m_name->setText(tr("Auto Reframe %1").arg(QStringLiteral(KR_VERSION)));
    m_purpose->setText(tr("Keeps the subject of a video in the picture. Everything runs on this computer."));
    m_versions->setText(m_libraries.join(QStringLiteral(" · ")));
    m_licences->setAccessibleName(tr("Licences"));
    m_licences->setMarkdown(Licences());
    Format(*m_licences->document());
    FitTables();
    m_close->setText(tr("Close"));
}
