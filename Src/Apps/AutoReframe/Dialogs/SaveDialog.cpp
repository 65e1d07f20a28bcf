#include <Apps/AutoReframe/Dialogs/SaveDialog.h>

#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>
#include <KxWidgets/KxUIStyle.h>

#include <QDir>
#include <QFileInfo>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace
{

constexpr int FieldHeightPx = 32;
constexpr int MarginPx = 24;
constexpr int CaptionGapPx = 6;

} // namespace

SaveDialog::SaveDialog(const QString& name, QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
    , m_nameCaption(MakeCaption())
    , m_name(KxLineEdit::creartNormalLineEdit(this, FieldHeightPx))
    , m_folderCaption(MakeCaption())
    , m_folder(KxOpenFileLineEdit::CreateOpenFileLineEdit(this))
    , m_message(KxLabel::CreateLabel(this, QString()))
    , m_cancel(GetButtonBar()->AddPushButton_R(1, -1))
    , m_accept(GetButtonBar()->AddPushButton_R(0, -1))
{
    setObjectName(name);
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    m_name->setObjectName(name + QStringLiteral("_name"));
    m_name->SetFileNameValidator(true);
    m_folder->setObjectName(name + QStringLiteral("_folder"));
    m_folder->setFixedHeight(FieldHeightPx);
    m_message->setObjectName(name + QStringLiteral("_message"));
    m_message->setWordWrap(true);
    m_cancel->setObjectName(name + QStringLiteral("_cancel"));
    m_accept->setObjectName(name + QStringLiteral("_accept"));
    connect(m_name, &QLineEdit::textChanged, this, &SaveDialog::ShowState);
    connect(m_folder, &KxOpenFileLineEdit::sigTextChanged, this, &SaveDialog::ShowState);
    connect(m_accept, &QAbstractButton::clicked, this, &SaveDialog::HandleAccept);
    connect(m_cancel, &QAbstractButton::clicked, this, &QDialog::reject);
}

SaveDialog::~SaveDialog() = default;

QString SaveDialog::Example() const
{
    return {};
}

bool SaveDialog::Fits(const QString& example) const
{
    const QRect area(0, 0, width() - 2 * MarginPx, QWIDGETSIZE_MAX);
    const QRect text = m_message->fontMetrics().boundingRect(area, Qt::TextWordWrap, example);
    return text.height() <= m_message->height() && text.width() <= area.width();
}

QString SaveDialog::InOneLine(const QString& name) const
{
    return m_message->fontMetrics().elidedText(name, Qt::ElideMiddle, width() - 2 * MarginPx);
}

QVBoxLayout* SaveDialog::MakeColumn()
{
    auto* const column = new QVBoxLayout(new QWidget(this));
    column->setContentsMargins(MarginPx, MarginPx, MarginPx, CaptionGapPx);
    column->setSpacing(GapPx);
    return column;
}

QWidget* SaveDialog::NameRow()
{
    return WithCaption(m_nameCaption, m_name);
}

void SaveDialog::ShowColumn(QVBoxLayout* column, int messageLines, int widthPx)
{
    column->addWidget(WithCaption(m_folderCaption, m_folder));
    column->addWidget(m_message);
    // So that the dialog does not change its size while the person types. The characters of some languages come from a
    // taller font, which the font's own line spacing does not take into account.
    const QFontMetrics metrics = m_message->fontMetrics();
    const int linePx = std::max(metrics.lineSpacing(), metrics.size(Qt::TextSingleLine, tr("Cancel")).height());
    m_message->setFixedHeight(messageLines * linePx + 2);
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    SetContentWidget(column->parentWidget());
    setFixedWidth(widthPx);
}

KxLabel* SaveDialog::MakeCaption()
{
    KxLabel* const caption = KxLabel::CreateLabel(this, QString());
    caption->setProperty("textRole", QStringLiteral("muted"));
    return caption;
}

QWidget* SaveDialog::WithCaption(KxLabel* caption, QWidget* field)
{
    caption->setBuddy(field);
    auto* const both = new QWidget(this);
    auto* const column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(CaptionGapPx);
    column->addWidget(caption);
    column->addWidget(field);
    return both;
}

void SaveDialog::ShowState()
{
    const KxError problem = Problem();
    m_accept->setEnabled(!problem);
    ShowText(problem ? *problem : Example(), problem.has_value());
}

void SaveDialog::ShowText(const QString& text, bool isError)
{
    m_message->setText(text);
    KxUIStyle::SetTextRole(*m_message, isError ? QStringLiteral("error") : QStringLiteral("muted"));
}

void SaveDialog::HandleAccept()
{
    const QString folder = Folder();
    if (QDir().mkpath(folder) && QFileInfo(folder).isWritable()) {
        accept();
        return;
    }
    ShowText(tr("Cannot write to the folder %1.").arg(QDir::toNativeSeparators(folder)), true);
    m_folder->setFocus();
}

QString SaveDialog::FileName() const
{
    return m_name->text().trimmed();
}

void SaveDialog::SetFileName(const QString& name)
{
    m_name->setText(name);
}

QString SaveDialog::Folder() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_folder->Text().trimmed()));
}

void SaveDialog::SetFolder(const QString& folder)
{
    m_folder->SetText(QDir::toNativeSeparators(folder));
}

void SaveDialog::SetNameTexts(const QString& caption, const QString& toolTip)
{
    m_nameCaption->setText(caption);
    m_name->setToolTip(toolTip);
}

void SaveDialog::SetFolderToolTip(const QString& toolTip)
{
    m_folder->setToolTip(toolTip);
}

void SaveDialog::SetAcceptText(const QString& text)
{
    m_accept->setText(text);
}

void SaveDialog::RetranslateUi()
{
    m_folderCaption->setText(tr("Save To"));
    m_cancel->setText(tr("Cancel"));
    ShowState();
}
