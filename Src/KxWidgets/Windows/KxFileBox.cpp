#include <KxWidgets/Windows/KxFileBox.h>

#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>
#include <KxWidgets/KxUIStyle.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QListView>
#include <QSplitter>
#include <QStandardPaths>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>
#include <QVariant>

namespace
{

constexpr int WidthPx = 800;
constexpr int HeightPx = 520;
constexpr int MarginPx = 16;
constexpr int IconPx = 16;
constexpr int PlacesPx = 150;

} // namespace

KxFileIcons::KxFileIcons() = default;

KxFileIcons::~KxFileIcons() = default;

QIcon KxFileIcons::icon(IconType type) const
{
    switch (type) {
    case Computer:
    case Drive:
    case Network:
        return KxUIStyle::Icon(QStringLiteral("drive"));
    case File:
        return KxUIStyle::Icon(QStringLiteral("file"));
    default:
        return KxUIStyle::Icon(QStringLiteral("folder"));
    }
}

QIcon KxFileIcons::icon(const QFileInfo& info) const
{
    if (info.isRoot()) {
        return icon(Drive);
    }
    return icon(info.isDir() ? Folder : File);
}

/// Refuses what does not pass the check, and stays open then.
class KxFileBox::Chooser : public QFileDialog
{
public:
    Chooser(QWidget* parent, const QString& caption, const QString& folder)
        : QFileDialog(parent, caption, folder)
    {
    }

    KxFileDialog::FileCheck check;

protected:
    void done(int result) override
    {
        if (result != QDialog::Accepted || PassesCheck()) {
            QFileDialog::done(result);
        }
    }

private:
    bool PassesCheck()
    {
        const QStringList files = check ? selectedFiles() : QStringList();
        for (const QString& file : files) {
            if (const std::optional<QString> refusal = check(file)) {
                KrMessageDialog::Infomation(*refusal, window(), KrStandardButton::Ok, {}, {}, {}, false);
                return false;
            }
        }
        return true;
    }
};

KxFileBox::KxFileBox(Picks picks, const QString& caption, const QString& folder, QWidget* parent)
    : KxFramelessDialog(caption, parent, false, true)
    , m_chooser(new Chooser(this, caption, folder))
{
    setObjectName(QStringLiteral("KxFileDialog"));
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::MaximizeButton | KxTopLevelWindowTitleBar::CloseButton);
    SetTitleName(caption, true);
    SetBottomBarVisible(false);
    // The options come first: they have no effect on a chooser that is already a child widget.
    m_chooser->setOption(QFileDialog::DontUseNativeDialog);
    // The patterns do not fit into the box.
    m_chooser->setOption(QFileDialog::HideNameFilterDetails);
    m_chooser->setOption(QFileDialog::ShowDirsOnly, picks == Picks::Folder);
    m_chooser->setFileMode(picks == Picks::Folder ? QFileDialog::Directory : QFileDialog::ExistingFiles);
    m_chooser->setIconProvider(&m_icons);
    m_chooser->setWindowFlags(Qt::Widget);
    m_chooser->setSizeGripEnabled(false);
    StyleButtons();
    StyleLists();
    SetContentWidget(m_chooser);
    connect(m_chooser, &QDialog::finished, this, &QDialog::done);
    resize(WidthPx, HeightPx);
}

KxFileBox::~KxFileBox()
{
    // The chooser uses the icons, a member of this class, until it is destroyed.
    delete m_chooser;
}

void KxFileBox::SetFilter(const QString& filter)
{
    m_chooser->setNameFilter(filter);
    if (auto* const types = m_chooser->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))) {
        types->setToolTip(filter);
    }
}

void KxFileBox::SetFileCheck(KxFileDialog::FileCheck check)
{
    m_chooser->check = std::move(check);
}

QStringList KxFileBox::Chosen() const
{
    return result() == QDialog::Accepted ? m_chooser->selectedFiles() : QStringList();
}

void KxFileBox::StyleLists()
{
    if (m_chooser->layout() != nullptr) {
        m_chooser->layout()->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
        m_chooser->layout()->setSpacing(MarginPx / 2);
    }
    if (auto* places = m_chooser->findChild<QListView*>(QStringLiteral("sidebar"))) {
        places->setIconSize(QSize(IconPx, IconPx));
    }
    const auto* const name = m_chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name != nullptr && name->completer() != nullptr) {
        name->completer()->popup()->setIconSize(QSize(IconPx, IconPx));
    }
    if (auto* files = m_chooser->findChild<QTreeView*>(QStringLiteral("treeView"))) {
        files->setIconSize(QSize(IconPx, IconPx));
        // The names give way, not the sizes and dates.
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        files->header()->setStretchLastSection(false);
    }
    if (auto* split = m_chooser->findChild<QSplitter*>()) {
        split->setSizes({PlacesPx, WidthPx - PlacesPx});
    }
    QList<QUrl> places;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo& drive : drives) {
        places.append(QUrl::fromLocalFile(drive.absoluteFilePath()));
    }
    for (const QStandardPaths::StandardLocation place :
         {QStandardPaths::HomeLocation, QStandardPaths::MoviesLocation, QStandardPaths::DownloadLocation}) {
        const QUrl url = QUrl::fromLocalFile(QStandardPaths::writableLocation(place));
        if (QDir(url.toLocalFile()).exists() && !places.contains(url)) {
            places.append(url);
        }
    }
    m_chooser->setSidebarUrls(places);
}

void KxFileBox::StyleButtons()
{
    const QMap<QString, QString> icons{
        {QStringLiteral("backButton"), QStringLiteral("chevron-left")},
        {QStringLiteral("forwardButton"), QStringLiteral("chevron-right")},
        {QStringLiteral("toParentButton"), QStringLiteral("arrow-up")},
        {QStringLiteral("newFolderButton"), QStringLiteral("new-folder")},
        {QStringLiteral("listModeButton"), QStringLiteral("list")},
        {QStringLiteral("detailModeButton"), QStringLiteral("details")},
    };
    for (auto icon = icons.constBegin(); icon != icons.constEnd(); ++icon) {
        if (auto* button = m_chooser->findChild<QToolButton*>(icon.key())) {
            button->setIcon(KxUIStyle::Icon(icon.value()));
            button->setAccessibleName(button->toolTip());
        }
    }
    if (auto* box = m_chooser->findChild<QDialogButtonBox*>()) {
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* button : buttons) {
            const bool accepts = box->buttonRole(button) == QDialogButtonBox::AcceptRole;
            button->setIcon(QIcon());
            button->setProperty("buttonKind", accepts ? QStringLiteral("primary") : QStringLiteral("secondary"));
        }
    }
}
