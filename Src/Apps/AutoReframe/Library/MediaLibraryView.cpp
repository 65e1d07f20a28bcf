#include <Apps/AutoReframe/Library/MediaLibraryView.h>

#include <Apps/AutoReframe/Library/LibraryShortcuts.h>
#include <Apps/AutoReframe/Library/MediaCardDelegate.h>
#include <Apps/AutoReframe/Library/MediaLibraryModel.h>

#include <KxWidgets/KxUIStyle.h>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace
{

using KxUIStyle::Role;

// None at the right, where the scroll bar is.
constexpr int MarginPx = 12;
constexpr int CardRadiusPx = 8;

} // namespace

MediaLibraryView::MediaLibraryView(MediaLibraryModel& model, QWidget* parent)
    : QListView(parent)
    , m_model(model)
    , m_delegate(new MediaCardDelegate(this))
{
    setObjectName(QStringLiteral("MediaLibrary"));
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setGridSize(MediaCardDelegate::CellSize());
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(MediaCardDelegate::CellSize().height() / 4);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(MarginPx, MarginPx, 0, 0);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setProperty("focusRingRadius", CardRadiusPx);
    setStyleSheet(QStringLiteral("#MediaLibrary { background: transparent; border: none; border-radius: 0px; }"
                                 "#MediaLibrary::item { min-height: 0px; background: transparent; }"));
    setItemDelegate(m_delegate);
    setModel(&m_model);
    setAccessibleName(tr("Videos"));
}

MediaLibraryView::~MediaLibraryView() = default;

void MediaLibraryView::SetDropActive(bool isActive)
{
    if (m_isDropActive != isActive) {
        m_isDropActive = isActive;
        m_delegate->SetDropActive(isActive);
        viewport()->update();
    }
}

void MediaLibraryView::SetLoading(bool isLoading)
{
    m_isLoading = isLoading;
    viewport()->update();
}

QModelIndexList MediaLibraryView::SelectedVideos() const
{
    QModelIndexList videos = selectedIndexes();
    std::sort(videos.begin(), videos.end());
    return videos;
}

void MediaLibraryView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Videos"));
    }
    QListView::changeEvent(event);
}

void MediaLibraryView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKeyboard ? currentIndex() : indexAt(viewport()->mapFromGlobal(event->globalPos()));
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("MediaLibraryMenu"));
    if (m_model.IdAt(index) >= 0) {
        if (m_model.StateAt(index) == MediaLibraryModel::State::Missing) {
            menu.addAction(tr("Find File…"), this, [this, index] { Q_EMIT sigFindFile(index); });
        } else {
            menu.addAction(tr("Auto Reframe…"), this, &MediaLibraryView::sigReframe);
            menu.addAction(tr("Reframe All…"), this, &MediaLibraryView::sigReframeAll)
                ->setShortcut(LibraryShortcuts::ReframeAll());
            if (SelectedVideos().size() == 1) {
                menu.addSeparator();
                menu.addAction(tr("Save Crop Track…"), this, &MediaLibraryView::sigSaveCropTrack);
                menu.addAction(tr("Open Crop Track…"), this, &MediaLibraryView::sigOpenCropTrack);
                ExportForMenu::AddTo(menu, [this](const EditListTarget& target) { Q_EMIT sigExportFor(target); });
                menu.addSeparator();
            }
        }
        menu.addAction(tr("Show in Folder"), this, [this, index] { Q_EMIT sigShowInFolder(index); });
        menu.addSeparator();
        menu.addAction(tr("Remove from Library"), this, &MediaLibraryView::sigRemove)->setShortcut(Qt::Key_Delete);
    } else {
        menu.addAction(tr("Import…"), this, &MediaLibraryView::sigImport);
    }
    menu.exec(byKeyboard ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void MediaLibraryView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    PlaceFocusRing();
}

void MediaLibraryView::keyPressEvent(QKeyEvent* event)
{
    const bool activates = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (activates && m_model.IdAt(currentIndex()) >= 0) {
        Q_EMIT sigActivated(currentIndex());
        return;
    }
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        Q_EMIT sigRemove();
        return;
    }
    QListView::keyPressEvent(event);
}

bool MediaLibraryView::InvitesImport(const QPoint& position) const
{
    if (m_model.Count() == 0) {
        return !m_isLoading && EmptyFrame().contains(position);
    }
    const QModelIndex index = indexAt(position);
    return m_model.IsDropPlace(index) && MediaCardDelegate::CardRect(visualRect(index)).contains(position);
}

void MediaLibraryView::mouseMoveEvent(QMouseEvent* event)
{
    viewport()->setCursor(InvitesImport(event->pos()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QListView::mouseMoveEvent(event);
}

void MediaLibraryView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && InvitesImport(event->pos())) {
        // Queued: with a chooser opened inside this event the view would never see the release.
        QMetaObject::invokeMethod(this, &MediaLibraryView::sigImport, Qt::QueuedConnection);
        return;
    }
    QListView::mousePressEvent(event);
}

QRect MediaLibraryView::EmptyFrame() const
{
    constexpr QSize framePx(360, 200);
    QRect frame(QPoint(), framePx.boundedTo(viewport()->size() - QSize(2 * MarginPx, 2 * MarginPx)));
    frame.moveCenter(viewport()->rect().center());
    return frame;
}

void MediaLibraryView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (m_model.Count() > 0 || m_isLoading) {
        return;
    }
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect frame = EmptyFrame();
    MediaCardDelegate::PaintDropFrame(painter, frame, m_isDropActive);
    constexpr int iconPx = 32;
    QRect icon(0, 0, iconPx, iconPx);
    icon.moveCenter(frame.center() - QPoint(0, 42));
    KxUIStyle::Icon(QStringLiteral("import")).paint(&painter, icon);
    QFont heading = font();
    heading.setPixelSize(15);
    heading.setWeight(QFont::DemiBold);
    painter.setFont(heading);
    painter.setPen(KxUIStyle::Colour(Role::Text));
    painter.drawText(frame.translated(0, 10), Qt::AlignCenter, tr("Drop videos here"));
    painter.setFont(font());
    painter.setPen(KxUIStyle::Colour(Role::Muted));
    painter.drawText(frame.translated(0, 46), Qt::AlignCenter, tr("or click to choose files"));
}

void MediaLibraryView::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    PlaceFocusRing();
}

void MediaLibraryView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    PlaceFocusRing();
}

void MediaLibraryView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    Q_EMIT sigSelectionChanged();
}

void MediaLibraryView::PlaceFocusRing()
{
    QRect ring =
        m_model.IdAt(currentIndex()) >= 0 ? MediaCardDelegate::CardRect(visualRect(currentIndex())) : EmptyFrame();
    ring.translate(viewport()->pos());
    setProperty("focusRingRect", ring);
}
