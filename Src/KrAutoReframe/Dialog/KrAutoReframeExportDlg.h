#pragma once

#include <KxWidgets/KxFramelessDialog.h>

#include <QSize>
#include <QString>
#include <QVariant>

class KxLabel;
class KxLineEdit;
class KxOpenFileLineEdit;
class KxPushButton;

/// Asks for the name and folder of an export, checks them and adds the export's parameters to the record that the host
/// gets. Lives for one export; the folder is stored in the host's configuration file. User-interface thread.
class KrAutoReframeExportDlg : public KxFramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframeExportDlg)

public:
    explicit KrAutoReframeExportDlg(QWidget* parent);
    ~KrAutoReframeExportDlg() override;

    void SetDefaultName(const QString& name);
    void SetResolution(const QSize& resolution);
    void SetFrameRate(float framesPerSecond);
    void SetVideoBitRate(int bitsPerSecond);
    void SetAudioBitRate(int bitsPerSecond);
    void SetSrcResolution(const QSize& resolution);
    void SetRatio(int width, int height);
    void SetAnalysisInfo(int speed, int adjustFrames, int duration, const QString& fileFormat);
    void SetSrcDuration(int duration);
    void SetMotionSpeed(int trackValue);
    void SetTrackRatio(int trackRatio);
    void SetEstimatedSize(qint64 bytes);

    /// Without line feeds and characters that a file name cannot contain.
    QString GetOutputName() const;
    /// With native separators and without a trailing one.
    QString GetOutputPath() const;
    /// The export record, a QVariantMap.
    QVariant GetExportInfo() const;

    /// Checks name and folder. Closes with result 1 if both are usable; otherwise shows the reason and stays open.
    void slotExportButtonClicked();

protected:
    void RetranslateUi() override;

private:
    void InitUi();
    QWidget* MakeForm();
    void ConnectSignals();
    QString LoadOutputPath();
    void SaveOutputPath(const QString& path) const;
    void RestoreDefaultName();
    void ShowInformation(const QString& text);

    KxLabel* m_nameLabel = nullptr;
    KxLabel* m_pathLabel = nullptr;
    KxLineEdit* m_nameEdit = nullptr;
    KxOpenFileLineEdit* m_pathEdit = nullptr;
    KxPushButton* m_exportButton = nullptr;
    qint64 m_estimatedSize = 0; ///< bytes
    float m_frameRate = 25.0F;
    int m_videoBitRate = 2000000; ///< bits a second
    int m_audioBitRate = 192000;  ///< bits a second
    QSize m_resolution;
    QString m_defaultName;
    QString m_defaultOutputDir;
    int m_ratioWidth = 0;
    int m_ratioHeight = 0;
    int m_speed = 0;
    int m_adjustFrames = 0;
    int m_duration = 0; ///< frames
    QString m_fileFormat;
    QSize m_srcResolution;
    int m_srcDuration = 0; ///< frames
    int m_motionSpeed = 0;
    int m_trackRatio = 0;
};
