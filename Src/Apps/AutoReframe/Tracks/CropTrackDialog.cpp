#include <Apps/AutoReframe/Tracks/CropTrackDialog.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>

#include <QDir>
#include <QVBoxLayout>
#include <QVariant>

CropTrackDialog::CropTrackDialog(const QString& name, const QString& folder,
                                 const std::optional<EditListTarget>& target, QWidget* parent)
    : SaveDialog(QStringLiteral("CropTrackDialog"), parent)
    , m_target(target)
    , m_formatCaption(MakeCaption())
    , m_format(KxComboBox::CreateComboBox(this))
{
    m_format->setObjectName(QStringLiteral("CropTrackDialog_format"));
    QVBoxLayout* const column = MakeColumn();
    column->addWidget(NameRow());
    QWidget* const formatRow = WithCaption(m_formatCaption, m_format);
    column->addWidget(formatRow);
    formatRow->setVisible(!m_target);
    if (m_target) {
        m_format->addItem(m_target->program, m_target->suffix);
    } else {
        m_format->addItem(QStringLiteral("JSON"), QStringLiteral("json"));
        m_format->addItem(QStringLiteral("CSV"), QStringLiteral("csv"));
    }
    constexpr int messageLines = 1;
    constexpr int widthPx = 480;
    ShowColumn(column, messageLines, widthPx);
    SetFileName(name);
    SetFolder(folder);
    RetranslateUi();
}

CropTrackDialog::~CropTrackDialog() = default;

QString CropTrackDialog::FilePath() const
{
    return QStringLiteral("%1/%2.%3").arg(Folder(), FileName(), m_format->currentData().toString());
}

KxError CropTrackDialog::Problem() const
{
    if (FileName().isEmpty()) {
        return tr("Enter a file name.");
    }
    if (!QDir::isAbsolutePath(Folder())) {
        return tr("Choose a folder.");
    }
    return std::nullopt;
}

void CropTrackDialog::RetranslateUi()
{
    SetTitleName(m_target ? tr("Export for %1").arg(m_target->program) : tr("Save Crop Track"), false);
    SetNameTexts(tr("File Name"), tr("The file gets a number if there is one of this name"));
    m_formatCaption->setText(tr("Format"));
    m_format->setToolTip(tr("The command line reads both"));
    SetFolderToolTip(m_target ? tr("The folder for the project or the keyframes")
                              : tr("The folder for the crop track"));
    SetAcceptText(tr("Save"));
    SaveDialog::RetranslateUi();
}
