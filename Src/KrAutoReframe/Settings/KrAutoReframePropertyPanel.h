#pragma once

#include <KxWidgets/KxWidget.h>

#include <QList>

#include <functional>

class KxComboBox;
class KxLabel;
class KxPushButton;
class KxToggleSwitch;
class KxToolButton;

/// The settings column: shows controls and reports clicks. Its owner acts on the clicks and decides which controls are
/// enabled. User-interface thread.
class KrAutoReframePropertyPanel : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframePropertyPanel)

public:
    explicit KrAutoReframePropertyPanel(QWidget* parent);
    ~KrAutoReframePropertyPanel() override;

    void RetranslateUi() override;

    /// The chosen aspect ratio as whole numbers, and the speed in the analysis's values: 8 fast, 16 auto, 24 slow.
    void GetParameters(int& ratioWidth, int& ratioHeight, int& motionSpeed) const;
    /// The number of a speed in usage reports; -1 for a speed that is not offered.
    int MotionSpeedToTrackValue(int motionSpeed) const;

    /// Chooses settings; one that is not offered is ignored.
    void SetParameters(int ratioWidth, int ratioHeight, int motionSpeed);
    /// Calls `changed` after each change of a setting, as long as `context` lives.
    void WhenParametersChange(QObject* context, const std::function<void()>& changed);

    /// Adds a line below the analyse button, hidden at first.
    void AddLine();
    /// Puts `widget` below the export button; the panel owns it.
    void AddBelowExport(QWidget* widget);
    /// What the line shows: the hint, or without one the fact. Progress takes the place of a hint, without its warning
    /// colour. For a fact that is empty, but not null, the line keeps its place, so that a hint that comes and goes
    /// does not move the export button. Only after AddLine().
    void SetHint(const QString& text);
    void SetProgress(const QString& text);
    void SetFact(const QString& text);

    /// Call it when a file was imported: from then on it can only be replaced.
    void OnFileImported();
    /// Also restores the analyse button: the next analysis counts as the first one again.
    void SetParameterEnabled(bool isEnabled);
    /// Preview switch and export button. A switch that is off is first turned on without a signal: the preview restarts
    /// with the source video.
    void SetPreviewEnabled(bool isEnabled);
    /// While busy, whatever needs the whole result or makes another one is disabled: preview, analysis and export.
    void SetBusy(bool isBusy);
    /// After the first analysis the restart button replaces the analyse button.
    void OnAnalysisFinished();

Q_SIGNALS:
    void sigImportFile();
    void sigExport();
    void sigStartAnalysis();
    /// True: the source video with the crop to adjust; false: the reframed result.
    void sigPreviewModeChanged(bool isAdjusting);

private:
    void InitUi();
    void InitButtons();
    void InitLayout();
    void ConnectSignals();
    void InitData();
    KxLabel* CreateLine(const QString& name, const QString& role);
    void ShowHint(const QString& text, const QString& role);
    void UpdateLine();

    KxToolButton* m_importButton = nullptr;
    KxToolButton* m_replaceButton = nullptr;
    KxLabel* m_aspectRatioLabel = nullptr;
    KxLabel* m_motionSpeedLabel = nullptr;
    KxToggleSwitch* m_previewSwitch = nullptr;
    KxComboBox* m_aspectRatioCombo = nullptr;
    KxComboBox* m_motionSpeedCombo = nullptr;
    KxPushButton* m_analyzeButton = nullptr;
    KxPushButton* m_restartButton = nullptr;
    KxPushButton* m_exportButton = nullptr;
    /// Null without the additional line. At most one of the two is shown.
    KxLabel* m_hint = nullptr;
    KxLabel* m_fact = nullptr;
    bool m_keepsLine = false;
    /// What to enable again after being busy.
    QList<QWidget*> m_disabledWhileBusy;
    bool m_notImported = true;
    /// The next analysis to finish is the first one since the settings were enabled.
    bool m_firstAnalysis = true;
};
