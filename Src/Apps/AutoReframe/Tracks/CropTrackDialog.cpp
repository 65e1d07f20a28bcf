#include <Apps/AutoReframe/Tracks/CropTrackDialog.h>

#include <Apps/AutoReframe/Batch/DialogFields.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QDir>
#include <QFileInfo>
#include <QVBoxLayout>

namespace
{

constexpr int WidthPx = 480;
constexpr int MarginPx = 24;
constexpr int GapPx = 18;

} // namespace

CropTrackDialog::CropTrackDialog(const QString& name, const QString& folder, QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
{
    setObjectName(QStringLiteral("CropTrackDialog"));
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    InitUi();
    m_name->setText(name);
    m_folder->SetText(QDir::toNativeSeparators(folder));
    connect(m_name, &QLineEdit::textChanged, this, &CropTrackDialog::ShowProblem);
    connect(m_folder, &KxOpenFileLineEdit::sigTextChanged, this, &CropTrackDialog::ShowProblem);
    connect(m_save, &QAbstractButton::clicked, this, &CropTrackDialog::HandleSave);
    connect(m_cancel, &QAbstractButton::clicked, this, &QDialog::reject);
    RetranslateUi();
}

CropTrackDialog::~CropTrackDialog() = default;

void CropTrackDialog::InitUi()
{
    using namespace DialogFields;
    m_nameCaption = MakeCaption(this);
    m_name = KxLineEdit::creartNormalLineEdit(this, FieldHeightPx);
    m_name->setObjectName(QStringLiteral("CropTrackDialog_name"));
    m_name->SetFileNameValidator(true);
    m_formatCaption = MakeCaption(this);
    m_format = KxComboBox::CreateComboBox(this);
    m_format->setObjectName(QStringLiteral("CropTrackDialog_format"));
    m_format->addItem(QStringLiteral("JSON"), QStringLiteral("json"));
    m_format->addItem(QStringLiteral("CSV"), QStringLiteral("csv"));
    m_folderCaption = MakeCaption(this);
    m_folder = KxOpenFileLineEdit::CreateOpenFileLineEdit(this);
    m_folder->setObjectName(QStringLiteral("CropTrackDialog_folder"));
    m_folder->setFixedHeight(FieldHeightPx);
    m_problem = KxLabel::CreateLabel(this, QString());
    m_problem->setObjectName(QStringLiteral("CropTrackDialog_problem"));
    m_problem->setWordWrap(true);
    m_cancel = GetButtonBar()->AddPushButton_R(1, -1);
    m_cancel->setObjectName(QStringLiteral("CropTrackDialog_cancel"));
    m_save = GetButtonBar()->AddPushButton_R(0, -1);
    m_save->setObjectName(QStringLiteral("CropTrackDialog_save"));
    auto* const content = new QWidget(this);
    auto* const column = new QVBoxLayout(content);
    constexpr int belowPx = 6;
    column->setContentsMargins(MarginPx, MarginPx, MarginPx, belowPx);
    column->setSpacing(GapPx);
    column->addWidget(WithCaption(m_nameCaption, m_name, this));
    column->addWidget(WithCaption(m_formatCaption, m_format, this));
    column->addWidget(WithCaption(m_folderCaption, m_folder, this));
    column->addWidget(m_problem);
    m_problem->setFixedHeight(m_problem->fontMetrics().lineSpacing() + 2);
    SetContentWidget(content);
    setFixedWidth(WidthPx);
}

QString CropTrackDialog::Folder() const
{
    return QDir::cleanPath(QDir::fromNativeSeparators(m_folder->Text().trimmed()));
}

QString CropTrackDialog::FilePath() const
{
    return QStringLiteral("%1/%2.%3").arg(Folder(), m_name->text().trimmed(), m_format->currentData().toString());
}

void CropTrackDialog::ShowProblem()
{
    const QString problem = m_name->text().trimmed().isEmpty() ? tr("Enter a file name.")
                            : !QDir::isAbsolutePath(Folder())  ? tr("Choose a folder.")
                                                               : QString();
    m_save->setEnabled(problem.isEmpty());
    DialogFields::ShowText(*m_problem, problem, true);
}

void CropTrackDialog::HandleSave()
{
    if (QDir().mkpath(Folder()) && QFileInfo(Folder()).isWritable()) {
        accept();
        return;
    }
    DialogFields::ShowText(*m_problem, tr("Cannot write to this folder."), true);
    m_folder->setFocus();
}

void CropTrackDialog::RetranslateUi()
{
    SetTitleName(tr("Save Crop Track"), false);
    m_nameCaption->setText(tr("File Name"));
    m_name->setToolTip(tr("The file gets a number if there is one of this name"));
    m_formatCaption->setText(tr("Format"));
    m_format->setToolTip(tr("The command line reads both"));
    m_folderCaption->setText(tr("Save To"));
    m_folder->setToolTip(tr("The folder for the crop track"));
    m_cancel->setText(tr("Cancel"));
    m_save->setText(tr("Save"));
    ShowProblem();
}
