#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <KxWidgets/KxWidgetView.h>

#include <QModelIndexList>

class ExportPanel;
class ExportQueue;
class KxLabel;
class KxPushButton;
class MediaLibrary;
class MediaLibraryView;
class MediaBackendLoader;

/// The program's window: library, exports, status. It paints itself first and brings the backend in afterwards.
class MainWindow : public KxWidgetView
{
    Q_OBJECT
public:
    /// `backend` is borrowed.
    explicit MainWindow(MediaBackendLoader& backend);
    ~MainWindow() override;

    /// Takes files into the library, as an import does.
    void Open(const QStringList& paths);
    ExportQueue& Exports();

    /// Shows a file's folder in the system's file manager; for tests, another one may be put in its place.
    using FolderShower = std::function<void(const QString& filePath)>;
    void SetFolderShower(FolderShower shower);

Q_SIGNALS:
    /// Once.
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
    void ChooseFiles();
    void SelectImported(const QModelIndexList& videos);
    void TellRefused(const QStringList& messages);
    void RemoveSelected();
    void ReframeSelected();
    void Reframe(const QModelIndexList& videos);
    /// Asks the person before the dialog opens for the next one of `left` selected videos.
    bool ContinuesWith(const MediaFile& video, int left);
    void Inform(const QString& text);
    bool MayQuit();

    MediaBackendLoader& m_backend;
    ExportQueue* const m_exports;
    MediaLibrary* const m_library;
    FolderShower m_showFolder;
    KxLabel* m_title = nullptr;
    KxPushButton* m_import = nullptr;
    KxPushButton* m_reframe = nullptr;
    MediaLibraryView* m_view = nullptr;
    ExportPanel* m_panel = nullptr;
    KxLabel* m_status = nullptr;
    bool m_isPainted = false;
    bool m_isReframing = false;
};
