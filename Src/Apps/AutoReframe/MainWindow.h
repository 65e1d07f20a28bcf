#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>
#include <Apps/AutoReframe/Batch/BatchSettings.h>

#include <KxWidgets/KxWidgetView.h>

#include <QModelIndexList>

class ExportKeeper;
class ExportPanel;
class ExportQueue;
class KxLabel;
class KxPushButton;
class KxToolButton;
class LibraryStore;
class MediaLibrary;
class MediaLibraryView;
class MediaBackendLoader;
class QMenu;
class QTimer;
struct EditListTarget;
struct StoredContents;

/// The program's window: library, exports, status.
class MainWindow : public KxWidgetView
{
    Q_OBJECT
public:
    /// Both are borrowed. What the store holds is shown when it is open.
    MainWindow(MediaBackendLoader& backend, LibraryStore& store);
    ~MainWindow() override;

    /// Imports files.
    void Open(const QStringList& paths);
    ExportQueue& Exports();
    /// Prepares for the end of the program, which the person did not ask for in the window: running exports are
    /// cancelled and offered at the next start.
    void Interrupt();

Q_SIGNALS:
    /// Once, after the first paint: what takes long to load is loaded from then on.
    void sigPainted();

protected:
    void RetranslateUi() override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void InitLayout();
    QWidget* MakeTopBar();
    QWidget* MakeStatusBar();
    void ConnectSignals();
    void ConnectLibrary();

    void ShowState();
    void Restore(const StoredContents& contents);
    void SelectPaths(const QStringList& paths);
    /// Selection and scroll position are saved soon.
    void ScheduleSaving();
    void SaveView();
    void ShowMenu();
    void AddRecent(QMenu& menu);
    void AddLanguages(QMenu& menu);
    void AddPaths(QMenu& menu, const QStringList& paths, const QIcon& icon);
    void ChooseFiles();
    void ChooseFolder();
    /// Empty if the person cancelled or the backend cannot be loaded, which is reported.
    QStringList ChooseVideos(const QString& caption, const QString& folder);
    void SelectImported(const QModelIndexList& videos);
    void ReportRefused(const QStringList& messages);
    void RemoveSelected();
    void Activate(const QModelIndex& video);
    void FindFile(const QModelIndex& video);
    void AskForOtherFile(int id, const QString& path);
    void ReframeSelected();
    void ReframeAllSelected();
    QList<int> UsableSelected() const;
    void LookAtExport(int id);
    /// Of the one selected video, as its dialog would show it.
    void SaveCropTrack();
    /// The same as a crop track, or for another program.
    void SaveCrops(const std::optional<EditListTarget>& target);
    /// Exports the one selected video with the crops of a file.
    void OpenCropTrack();
    /// Without a path unless one video is selected.
    CropRequest RequestForSelected() const;
    /// Nothing if the person cancelled or it failed, which is reported.
    std::optional<FoundCrops> WaitForCrops(const CropRequest& request);
    void ShowHelp();
    void ShowAbout();
    /// Where the person has exported to last.
    QString OutputFolder() const;
    /// Whether there is such a file already, or an export is going to write it.
    bool IsTaken(const QString& path) const;
    static void ShowInFolder(const QString& filePath);
    void Reframe(const QModelIndexList& videos);
    /// Shows the dialog for the videos that are left, one after the other; returns while one of them is being opened.
    void ReframeNext();
    void ShowDialog(const MediaFile& video);
    VideoEdits EditsFor(const QString& path) const;
    /// Asks the person before the dialog opens for the next one of `left` selected videos.
    bool ContinuesWith(const QString& path, int left);
    void Inform(const QString& text);
    bool MayQuit();

    MediaBackendLoader& m_backend;
    LibraryStore& m_store;
    ExportQueue* const m_exports;
    ExportKeeper* const m_keeper;
    MediaLibrary* const m_library;
    KxLabel* m_title = nullptr;
    KxToolButton* m_menu = nullptr;
    KxPushButton* m_import = nullptr;
    KxPushButton* m_reframeAll = nullptr;
    KxPushButton* m_reframe = nullptr;
    MediaLibraryView* m_view = nullptr;
    ExportPanel* m_panel = nullptr;
    KxLabel* m_status = nullptr;
    KxLabel* m_skipped = nullptr;
    bool m_isPainted = false;
    bool m_isReframing = false;
    /// Numbers of the videos that the dialog is still to be shown for.
    QList<int> m_toReframe;
    /// The settings with which the next dialog opens, in place of those that the person chose last.
    std::optional<ReframePlan> m_dialogPlan;
    /// Whose crops the next dialog shows; null if it analyzes the video.
    std::shared_ptr<const CropTrack> m_dialogTrack;
    BatchSettings m_batchSettings;
    QTimer* const m_saving;
};
