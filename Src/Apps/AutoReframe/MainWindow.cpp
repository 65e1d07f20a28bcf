#include <Apps/AutoReframe/MainWindow.h>

#include <Apps/AutoReframe/Backend/MediaBackendLoader.h>
#include <Apps/AutoReframe/Exports/ExportKeeper.h>
#include <Apps/AutoReframe/Exports/ExportPanel.h>
#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Library/LibraryShortcuts.h>
#include <Apps/AutoReframe/Library/MediaLibrary.h>
#include <Apps/AutoReframe/Library/MediaLibraryView.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Apps/AutoReframe/WindowMemory.h>

#include <KxWidgets/KrMessageDialog.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxToolButton.h>

#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <QVariant>

namespace
{

constexpr QSize FirstSizePx(1180, 740);
constexpr QSize SmallestSizePx(720, 420);
constexpr int TopBarPx = 52;
constexpr int StatusBarPx = 28;
constexpr int ButtonPx = 32;
constexpr int MarginPx = 16;

std::unique_ptr<MediaTask> Render(MediaBackendLoader& loader, const ExportRequest& request,
                                  const KxRenderJob::Callbacks& callbacks)
{
    MediaBackend* const backend = loader.Get();
    if (backend == nullptr) {
        callbacks.finished({KxOutcome::Failed, loader.Error(), QString(), QString()});
        return nullptr;
    }
    return backend->Render(request, callbacks);
}

std::unique_ptr<MediaTask> FindCrops(MediaBackendLoader& loader, const CropRequest& request,
                                     const CropCallbacks& callbacks)
{
    MediaBackend* const backend = loader.Get();
    if (backend == nullptr) {
        FoundCrops none;
        none.message = loader.Error();
        callbacks.finished(none);
        return nullptr;
    }
    return backend->FindCrops(request, callbacks);
}

/// A bar with a line along one of its sides.
KxWidget* MakeBar(const QString& name, const QString& lineSide, int heightPx, QWidget* parent)
{
    auto* const bar = new KxWidget(parent);
    bar->setObjectName(name);
    bar->setFixedHeight(heightPx);
    bar->setProperty("barLine", lineSide);
    return bar;
}

} // namespace

MainWindow::MainWindow(MediaBackendLoader& backend, LibraryStore& store)
    : m_backend(backend)
    , m_store(store)
    , m_exports(new ExportQueue(
          {[&backend](const ExportRequest& request, const KxRenderJob::Callbacks& callbacks) {
               return Render(backend, request, callbacks);
           },
           [this](const QString& path, const ReframePlan& plan, const CropCallbacks& callbacks) {
               return FindCrops(m_backend, {path, plan, m_library->EditsOf(path), QString()}, callbacks);
           }},
          this))
    , m_keeper(new ExportKeeper(*m_exports, store, this))
    , m_library(new MediaLibrary(backend, store, this))
    , m_saving(new QTimer(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setAcceptDrops(true);
    setMinimumSize(SmallestSizePx);
    InitLayout();
    ConnectSignals();
    ConnectLibrary();
    RetranslateUi();
    if (!WindowMemory::Restore(*this)) {
        WindowMemory::ResizeToFit(*this, FirstSizePx);
    }
    m_view->setFocus();
    if (m_store.IsFile()) {
        m_view->SetLoading(true);
        m_panel->SetLoading(true);
        m_status->clear();
    } else {
        m_store.Open();
    }
}

MainWindow::~MainWindow()
{
    delete m_keeper;
    // Both use the backend, which may be destroyed next.
    delete m_exports;
    delete m_library;
}

void MainWindow::InitLayout()
{
    QWidget* const top = MakeTopBar();
    m_view = new MediaLibraryView(m_library->Model(), this);
    m_panel = new ExportPanel(*m_exports, this);
    auto* const middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_view, 1);
    middle->addWidget(m_panel);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(top);
    column->addLayout(middle, 1);
    column->addWidget(MakeStatusBar());
}

QWidget* MainWindow::MakeTopBar()
{
    KxWidget* const bar = MakeBar(QStringLiteral("TopBar"), QStringLiteral("bottom"), TopBarPx, this);
    m_title = KxLabel::CreateLabel(bar, QString());
    m_title->setObjectName(QStringLiteral("TopBar_title"));
    m_title->setProperty("textRole", QStringLiteral("heading"));
    m_menu = KxToolButton::CreateToolButton(bar, QStringLiteral("TopBar_menu"));
    m_menu->SetGlyph(QStringLiteral("list"));
    m_menu->setFixedSize(ButtonPx, ButtonPx);
    m_import = KxPushButton::CreateSecondaryButton(bar, ButtonPx);
    m_import->setObjectName(QStringLiteral("TopBar_import"));
    m_reframeAll = KxPushButton::CreateSecondaryButton(bar, ButtonPx);
    m_reframeAll->setObjectName(QStringLiteral("TopBar_reframeAll"));
    m_reframe = KxPushButton::CreatePrimaryButton(bar, ButtonPx);
    m_reframe->setObjectName(QStringLiteral("TopBar_reframe"));
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(MarginPx, 0, MarginPx, 0);
    row->setSpacing(8);
    row->addWidget(m_title, 1);
    row->addWidget(m_menu);
    row->addWidget(m_import);
    row->addWidget(m_reframeAll);
    row->addWidget(m_reframe);
    return bar;
}

QWidget* MainWindow::MakeStatusBar()
{
    KxWidget* const bar = MakeBar(QStringLiteral("StatusBar"), QStringLiteral("top"), StatusBarPx, this);
    m_status = KxLabel::CreateLabel(bar, QString());
    m_status->setObjectName(QStringLiteral("StatusBar_text"));
    m_status->setProperty("textRole", QStringLiteral("small"));
    m_skipped = KxLabel::CreateLabel(bar, QString());
    m_skipped->setObjectName(QStringLiteral("StatusBar_skipped"));
    m_skipped->setProperty("textRole", QStringLiteral("small"));
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(MarginPx, 0, MarginPx, 0);
    row->addWidget(m_status, 1);
    row->addWidget(m_skipped);
    return bar;
}

void MainWindow::ConnectSignals()
{
    connect(m_menu, &QAbstractButton::clicked, this, &MainWindow::ShowMenu);
    connect(m_import, &QAbstractButton::clicked, this, &MainWindow::ChooseFiles);
    connect(m_reframeAll, &QAbstractButton::clicked, this, &MainWindow::ReframeAllSelected);
    connect(m_reframe, &QAbstractButton::clicked, this, &MainWindow::ReframeSelected);
    connect(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, this, &MainWindow::ChooseFiles);
    connect(new QShortcut(LibraryShortcuts::Quit(), this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(LibraryShortcuts::ReframeAll(), this), &QShortcut::activated, this,
            &MainWindow::ReframeAllSelected);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &MainWindow::ShowHelp);
    connect(m_panel, &ExportPanel::sigShowInFolder, this, &MainWindow::ShowInFolder);
    connect(m_panel, &ExportPanel::sigLook, this, &MainWindow::LookAtExport);
    connect(&m_store, &LibraryStore::sigNotice, this, &MainWindow::Inform);
    constexpr int savesAfterMs = 300;
    m_saving->setSingleShot(true);
    m_saving->setInterval(savesAfterMs);
    connect(m_saving, &QTimer::timeout, this, &MainWindow::SaveView);
    connect(m_view->verticalScrollBar(), &QAbstractSlider::valueChanged, this, &MainWindow::ScheduleSaving);
}

void MainWindow::ConnectLibrary()
{
    connect(m_view, &MediaLibraryView::sigSelectionChanged, this, &MainWindow::ShowState);
    connect(m_view, &MediaLibraryView::sigSelectionChanged, this, &MainWindow::ScheduleSaving);
    connect(m_view, &MediaLibraryView::sigActivated, this, &MainWindow::Activate);
    connect(m_view, &QAbstractItemView::doubleClicked, this, &MainWindow::Activate);
    connect(m_view, &MediaLibraryView::sigFindFile, this, &MainWindow::FindFile);
    connect(m_view, &MediaLibraryView::sigImport, this, &MainWindow::ChooseFiles);
    connect(m_view, &MediaLibraryView::sigRemove, this, &MainWindow::RemoveSelected);
    connect(m_view, &MediaLibraryView::sigReframe, this, &MainWindow::ReframeSelected);
    connect(m_view, &MediaLibraryView::sigReframeAll, this, &MainWindow::ReframeAllSelected);
    connect(m_view, &MediaLibraryView::sigSaveCropTrack, this, &MainWindow::SaveCropTrack);
    connect(m_view, &MediaLibraryView::sigOpenCropTrack, this, &MainWindow::OpenCropTrack);
    connect(m_view, &MediaLibraryView::sigExportFor, this, &MainWindow::SaveCrops);
    connect(m_view, &MediaLibraryView::sigShowInFolder, this,
            [this](const QModelIndex& video) { ShowInFolder(m_library->Model().PathAt(video)); });
    connect(m_library, &MediaLibrary::sigImported, this, &MainWindow::SelectImported);
    connect(m_library, &MediaLibrary::sigRestored, this, &MainWindow::Restore);
    connect(m_library, &MediaLibrary::sigOpened, this, &MainWindow::ShowState);
    connect(m_library, &MediaLibrary::sigOpened, this, &MainWindow::ReframeNext);
    connect(m_library, &MediaLibrary::sigCannotOpen, this, [this] { m_toReframe.clear(); });
    connect(m_library, &MediaLibrary::sigOtherFile, this, &MainWindow::AskForOtherFile);
    connect(&m_library->Model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex&, const QModelIndex&, const QVector<int>& roles) {
                if (!roles.contains(MediaLibraryModel::ThumbnailRole)) {
                    ShowState();
                }
            });
    connect(m_library, &MediaLibrary::sigSkipped, this, [this](int files) {
        m_skipped->setText(files > 0 ? tr("%n files that are no videos were skipped", nullptr, files) : QString());
    });
    connect(m_library, &MediaLibrary::sigRefused, this, &MainWindow::ReportRefused);
    connect(&m_library->Model(), &QAbstractItemModel::rowsInserted, this, &MainWindow::ShowState);
    connect(&m_library->Model(), &QAbstractItemModel::rowsRemoved, this, &MainWindow::ShowState);
}

void MainWindow::ShowInFolder(const QString& filePath)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(filePath).absolutePath()));
}

void MainWindow::RetranslateUi()
{
    setWindowTitle(tr("Auto Reframe"));
    m_title->setText(tr("Auto Reframe"));
    m_menu->setToolTip(tr("Menu"));
    m_import->setText(tr("Import…"));
    m_reframeAll->setText(tr("Reframe All…"));
    m_reframe->setText(tr("Auto Reframe…"));
    m_import->setToolTip(tr("Add videos to the library"));
    m_reframeAll->setToolTip(tr("Reframe all selected videos without looking at each"));
    m_reframe->setToolTip(tr("Reframe the selected videos one after the other"));
    ShowState();
}

void MainWindow::ShowState()
{
    const QModelIndexList selected = m_view->SelectedVideos();
    const int videos = m_library->Model().Count();
    m_status->setText(videos == 0 ? tr("No videos yet")
                                  : QStringLiteral("%1 · %2").arg(tr("%n videos", nullptr, videos),
                                                                  tr("%n selected", nullptr, selected.size())));
    const bool canReframe = !UsableSelected().isEmpty();
    m_reframeAll->setEnabled(canReframe);
    m_reframe->setEnabled(canReframe);
}

void MainWindow::paintEvent(QPaintEvent* event)
{
    KxWidgetView::paintEvent(event);
    if (!m_isPainted) {
        m_isPainted = true;
        // Queued: the children have not painted yet.
        QMetaObject::invokeMethod(this, &MainWindow::sigPainted, Qt::QueuedConnection);
    }
}

ExportQueue& MainWindow::Exports()
{
    return *m_exports;
}

void MainWindow::Interrupt()
{
    m_keeper->StopSaving();
    m_exports->CancelAll();
}

void MainWindow::Restore(const StoredContents& contents)
{
    m_view->SetLoading(false);
    m_panel->SetLoading(false);
    ShowState();
    m_batchSettings = BatchSettings::FromJson(contents.batchSettings);
    SelectPaths(contents.selection);
    // The scroll bar has no range before the cards have their places.
    m_view->doItemsLayout();
    m_view->verticalScrollBar()->setValue(contents.scrollPx);
}

void MainWindow::SelectPaths(const QStringList& paths)
{
    const QSet<QString> wanted(paths.begin(), paths.end());
    const MediaLibraryModel& model = m_library->Model();
    // By ranges: thousands of single cards would take seconds.
    QItemSelection selection;
    int first = -1;
    for (int row = 0; row <= model.Count(); ++row) {
        const bool isWanted = row < model.Count() && wanted.contains(model.PathAt(model.index(row)));
        if (isWanted && first < 0) {
            first = row;
        } else if (!isWanted && first >= 0) {
            selection.select(model.index(first), model.index(row - 1));
            first = -1;
        }
    }
    if (!selection.isEmpty()) {
        m_view->selectionModel()->setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
        m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
}

void MainWindow::ScheduleSaving()
{
    if (!m_saving->isActive()) {
        m_saving->start();
    }
}

void MainWindow::SaveView()
{
    m_saving->stop();
    // Before the last run's is restored there is nothing to save.
    if (!m_store.IsOpen()) {
        return;
    }
    QStringList paths;
    for (const QModelIndex& video : m_view->SelectedVideos()) {
        paths += m_library->Model().PathAt(video);
    }
    m_store.SaveSelection(paths);
    m_store.SaveScroll(m_view->verticalScrollBar()->value());
}

bool MainWindow::MayQuit()
{
    const int unfinished = m_exports->UnfinishedCount();
    return unfinished == 0 ||
           KrMessageDialog::Question_CustomYesNo(
               tr("%n exports are not finished. They are cancelled when you quit.", nullptr, unfinished),
               tr("Keep Exporting"), tr("Quit"), this, KrStandardButton::No, QString(), tr("Auto Reframe"),
               KrMessageType::Question);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!MayQuit()) {
        event->ignore();
        return;
    }
    m_exports->CancelAll();
    SaveView();
    WindowMemory::Save(*this);
    event->accept();
}
