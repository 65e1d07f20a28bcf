#pragma once

#include <Apps/AutoReframe/Dialogs/ExportForMenu.h>

#include <QListView>

class MediaCardDelegate;
class MediaLibraryModel;

/// The library's cards. Only reports what the person asks for. User-interface thread.
class MediaLibraryView : public QListView
{
    Q_OBJECT
public:
    /// `model` is borrowed and outlives the view.
    MediaLibraryView(MediaLibraryModel& model, QWidget* parent);
    ~MediaLibraryView() override;

    /// Whether files that can be dropped are being dragged over the window.
    void SetDropActive(bool isActive);
    /// While the videos of the last run are read, an empty library shows no invitation to import.
    void SetLoading(bool isLoading);
    /// In the order of the library.
    QModelIndexList SelectedVideos() const;

Q_SIGNALS:
    void sigSelectionChanged();
    /// A double click or Return on a video.
    void sigActivated(const QModelIndex& index);
    void sigImport();
    void sigRemove();
    void sigReframe();
    void sigReframeAll();
    void sigSaveCropTrack();
    void sigOpenCropTrack();
    void sigExportFor(const EditListTarget& target);
    void sigShowInFolder(const QModelIndex& index);
    /// The file of a video is missing, and the person wants to find it.
    void sigFindFile(const QModelIndex& index);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void PlaceFocusRing();
    bool InvitesImport(const QPoint& position) const;
    QRect EmptyFrame() const;

    MediaLibraryModel& m_model;
    MediaCardDelegate* const m_delegate;
    bool m_isDropActive = false;
    bool m_isLoading = false;
};
