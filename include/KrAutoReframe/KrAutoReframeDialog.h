#pragma once

#include <KrAutoReframe/KrAutoReframeExport.h>

#include <KxWidgets/KxFramelessDialog.h>

#include <QList>
#include <QStringList>
#include <QVariant>

class IKxAbstractMedia;
class IKxAbstractMediaItem;
class IKxTimeline;
class KrAutoReframeExtensions;
class KrAutoReframePlayerView;
class KrAutoReframeProcess;
class KrAutoReframePropertyPanel;
class KrDialogExtension;
class KxLabel;
class KxProgressDialog;

/// The tool dialog that an editor loads: the user analyses one video, adjusts the crop and exports the reframed result.
///
/// Life cycle: the host constructs it, passes media (InitMediaItem) or a timeline (InitTimeline), runs it with
/// DoModal() and deletes it; each run needs a new dialog. The host keeps the ownership of media and timelines, which
/// have to outlive the dialog. User-interface thread.
class KRAUTOREFRAME_API KrAutoReframeDialog : public KxFramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframeDialog)

public:
    explicit KrAutoReframeDialog(QWidget* parent);
    ~KrAutoReframeDialog() override;

    /// Turns the dialog's extensions on. Call it at most once, before InitMediaItem and InitTimeline. `extensions`
    /// outlives the dialog.
    void SetExtensions(KrAutoReframeExtensions& extensions);
    /// Takes the first item of `media` with a video stream as the source. Without one only the list changes.
    void InitMediaItem(const QList<IKxAbstractMedia*>& media);
    /// Takes `timeline` as the source; its first clip's file is analysed. Null changes nothing.
    void InitTimeline(IKxTimeline* timeline);
    /// Shows a file's name in the title bar; an empty one changes nothing.
    void UpdateProjectName(const QString& fileName);
    /// The system's own file chooser. `filter` is a list of zero-terminated pairs of name and patterns that ends with
    /// an empty one. Paths have slashes; the list is empty if the user cancelled. `caption` is not shown: the
    /// system has its own title.
    QStringList GetOpenFileNames(const QString& caption, const QString& initialDir, const wchar_t* filter,
                                 QWidget* owner, bool multiSelect);

    void slotOpenImportDialog();
    void slotStartAnalysis();
    /// `progress` in ten-thousandths; a negative one is ignored.
    void slotUpdateProgress(int progress) const;
    void slotAnalysisFinished(bool success);
    /// True: the source with the crop to adjust; false: the reframed result.
    void slotPreviewMode(bool checked);
    void slotExportToLocal();

Q_SIGNALS:
    /// The user wants the result as a file. `timeline` carries the keyframes and is owned by the dialog: it is
    /// valid while the signal is delivered. `info` is a QVariantMap, the export record:
    /// - where: "path" (folder, native separators), "name" (file name without suffix), "org_file_name" (as typed);
    /// - how: "resolution" (QSize, pixels), "frame_rate" (float, frames a second, 0 where unknown), "video_bit_rate",
    ///   "audio_bit_rate" (bits a second);
    /// - for reports: "export_module", "radio_w" and "radio_h" (the aspect ratio), "speed", "motion_speed",
    ///   "track_ratio", "adjust_frames" (frames adjusted by hand), "duration" and "src_duration" (frames),
    ///   "src_resolution" (QSize, pixels), "file_format" (the source's suffix).
    void sigExportToLocal(IKxTimeline* timeline, QList<IKxAbstractMedia*>& media, QVariant info);
    /// This machine cannot run the analysis; the host shows its own notice.
    void sigShowUnsupportDlg();

protected:
    void ConnectSignal();
    /// A crop in fractions of `source` as an even size in pixels.
    QSize CalculateResolution(QSize source, const QRectF& cropRatio) const;

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void InitLayout();
    void ShowInformation(const QString& text);
    bool AskToExit(const QString& refuseText);
    bool HasSource() const;
    void ShowSourceIsReady();
    void HandleProgressRejected();
    void MinimizeHost();
    bool IsRefusedAsUnsupported();
    void StartAnalysis(int width, int height, int mode);
    void LeaveSource();
    /// Null unless the host has turned the extensions on. A child object and no member: hosts are compiled with the
    /// size of this class.
    KrDialogExtension* Extension() const;

    QWidget* m_contentWidget = nullptr;
    KxLabel* m_titleLabel = nullptr;
    QString m_sourcePath;
    QString m_sourceSuffix;
    KrAutoReframePropertyPanel* m_propertyPanel = nullptr;
    KrAutoReframePlayerView* m_playerView = nullptr;
    KxProgressDialog* m_progressDialog = nullptr;
    KrAutoReframeProcess* m_process = nullptr;
    QList<IKxAbstractMedia*> m_mediaList;
    IKxAbstractMediaItem* m_videoMedia = nullptr;
    IKxAbstractMediaItem* m_importedMedia = nullptr;
};
