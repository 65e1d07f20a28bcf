#include <Apps/AutoReframe/Help/HelpDialog.h>

#include <Apps/AutoReframe/Library/LibraryShortcuts.h>

#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QGridLayout>
#include <QKeySequence>
#include <QVBoxLayout>
#include <QVariant>

namespace
{

constexpr int MarginPx = 24;
constexpr int ColumnGapPx = 40;
constexpr int RowGapPx = 8;

QString TextOf(const QKeySequence& key)
{
    return key.toString(QKeySequence::NativeText);
}

} // namespace

HelpDialog::HelpDialog(QWidget* parent)
    : KxFramelessDialog(QString(), parent, true, true)
{
    setObjectName(QStringLiteral("HelpDialog"));
    GetTitleBar()->SetButtons(KxTopLevelWindowTitleBar::CloseButton);
    m_close = GetButtonBar()->AddPushButton_R(0, -1);
    m_close->setObjectName(QStringLiteral("HelpDialog_close"));
    connect(m_close, &QAbstractButton::clicked, this, &QDialog::accept);
    RetranslateUi();
}

HelpDialog::~HelpDialog() = default;

QList<HelpDialog::Shortcut> HelpDialog::OfLibrary()
{
    return {{tr("Import videos"), TextOf(QKeySequence::Open)},
            {tr("Select all videos"), TextOf(QKeySequence::SelectAll)},
            {tr("Select several videos"), tr("Ctrl+Click, Shift+Click")},
            {tr("Reframe the selected video"), TextOf(Qt::Key_Return)},
            {tr("Reframe all selected videos"), TextOf(LibraryShortcuts::ReframeAll())},
            {tr("Remove from the library"), TextOf(Qt::Key_Delete)},
            {tr("Show this list"), TextOf(Qt::Key_F1)},
            {tr("Quit"), TextOf(LibraryShortcuts::Quit())}};
}

QList<HelpDialog::Shortcut> HelpDialog::OfDialog()
{
    const auto of = [](int action) { return TextOf(IKxShortcutEditManager::GetInstance()->keySequence(action)); };
    using Manager = IKxShortcutEditManager;
    return {{tr("Play, pause"), of(Manager::PlayPause)},
            {tr("Stop"), of(Manager::Stop)},
            {tr("Back"), of(Manager::Backward)},
            {tr("Forward"), of(Manager::Forward)},
            {tr("Undo"), of(Manager::Undo)},
            {tr("Redo"), of(Manager::Redo)},
            {tr("Previous edit point"), of(Manager::PreviousEditPoint)},
            {tr("Next edit point"), of(Manager::NextEditPoint)},
            {tr("Delete the edit point"), of(Manager::Delete)},
            {tr("Previous doubtful shot"), of(Manager::PreviousDoubtfulShot)},
            {tr("Next doubtful shot"), of(Manager::NextDoubtfulShot)},
            {tr("Move the crop by a pixel"), tr("Arrow keys")},
            {tr("Move the crop by 10 pixels"), tr("Shift+Arrow keys")},
            {tr("Point at the middle of the crop"), TextOf(Qt::Key_Menu)},
            {tr("Back to automatic in this shot"), of(Manager::BackToAutomatic)},
            {tr("Remove the box"), TextOf(Qt::Key_Escape)}};
}

QVBoxLayout* HelpDialog::MakeColumn(const QString& heading, const QList<Shortcut>& shortcuts, QWidget* parent) const
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(RowGapPx);
    KxLabel* const title = KxLabel::CreateLabel(parent, heading);
    title->setProperty("textRole", QStringLiteral("heading"));
    column->addWidget(title);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(MarginPx);
    grid->setVerticalSpacing(RowGapPx);
    grid->setColumnStretch(0, 1);
    for (int row = 0; row < shortcuts.size(); ++row) {
        // The person may have taken the key away.
        if (shortcuts.at(row).second.isEmpty()) {
            continue;
        }
        KxLabel* const action = KxLabel::CreateLabel(parent, shortcuts.at(row).first);
        action->setObjectName(QStringLiteral("HelpDialog_action"));
        KxLabel* const key = KxLabel::CreateLabel(parent, shortcuts.at(row).second);
        key->setObjectName(QStringLiteral("HelpDialog_key"));
        key->setProperty("keyCap", true);
        grid->addWidget(action, row, 0);
        grid->addWidget(key, row, 1, Qt::AlignRight);
    }
    column->addLayout(grid);
    column->addStretch(1);
    return column;
}

void HelpDialog::FillContent()
{
    auto* const content = new QWidget(this);
    auto* const row = new QHBoxLayout(content);
    row->setContentsMargins(MarginPx, MarginPx, MarginPx, MarginPx);
    row->setSpacing(ColumnGapPx);
    row->addLayout(MakeColumn(tr("Library"), OfLibrary(), content), 1);
    row->addLayout(MakeColumn(tr("Auto Reframe Window"), OfDialog(), content), 1);
    SetContentWidget(content);
}

void HelpDialog::RetranslateUi()
{
    SetTitleName(tr("Keyboard Shortcuts"), false);
    m_close->setText(tr("Close"));
    FillContent();
}
