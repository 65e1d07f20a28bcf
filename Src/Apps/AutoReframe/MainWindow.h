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

/// The program's window: library, exports, status.
class MainWindow : public KxWidgetView
{
    Q_OBJECT
public:
    /// `backend` is borrowed.
    explicit MainWindow(MediaBackendLoader& backend);
    ~MainWindow() override;

    /// Imports files.
    void Open(const QStringList& paths);
    ExportQueue& Exports();

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
    void ChooseFiles();
    void SelectImported(const QModelIndexList& videos);
    void ReportRefused(const QStringList& messages);
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
    KxLabel* m_title = nullptr;
    KxPushButton* m_import = nullptr;
    KxPushButton* m_reframe = nullptr;
    MediaLibraryView* m_view = nullptr;
    ExportPanel* m_panel = nullptr;
    KxLabel* m_status = nullptr;
    bool m_isPainted = false;
    bool m_isReframing = false;
};
