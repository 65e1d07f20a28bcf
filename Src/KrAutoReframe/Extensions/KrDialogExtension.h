#pragma once

#include <KrAutoReframe/KrAutoReframeExtensions.h>

#include <QFutureWatcher>
#include <QObject>

#include <functional>

class KrAutoReframePlayerView;
class KrAutoReframeProcess;
class KrAutoReframePropertyPanel;
class KrDoubtfulShots;

/// What the dialog does beyond its required behaviour, for a host that has turned it on: connects the dialog's parts
/// with the host's KrAutoReframeExtensions. Child of the dialog; user-interface thread.
class KrDialogExtension : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrDialogExtension)

public:
    /// The dialog's parts; they live as long as the dialog.
    struct Parts {
        KrAutoReframeProcess& process;
        KrAutoReframePropertyPanel& panel;
        KrAutoReframePlayerView& view;
        /// Analyzes the source with the settings of the panel.
        std::function<void()> analyze;
    };

    KrDialogExtension(KrAutoReframeExtensions& host, const Parts& parts, QObject* parent);
    ~KrDialogExtension() override;

    /// Call it before another source is opened: what happens to the edits until then is not the person's doing.
    void LeaveSource();
    /// Waits a moment for the end of the analysis that was just started. False if it takes longer, so that its progress
    /// has to be shown.
    bool EndsSoon();
    /// Whether the next result is shown at the player's frame, and not from the beginning: the person knows the video.
    bool StaysAtFrame() const;
    /// Call it when an analysis has succeeded and its result is shown.
    void ShowResults();

private:
    struct Settings {
        int width = 0;
        int height = 0;
        int speed = 0;
    };

    Settings PanelSettings() const;
    void EnterSource();
    void HandleKnown();
    void ShowShots();
    void HandleSettingsChanged();
    void UpdateHint();
    KrAutoReframeState CurrentState() const;
    void ReportChange();

    KrAutoReframeExtensions& m_host;
    const Parts m_parts;
    /// Of the open source; empty without one.
    QString m_path;
    /// As the host knows it.
    KrAutoReframeState m_state;
    /// Results of the open source are shown.
    bool m_hasResults = false;
    /// Null if the host's service has no shots.
    KrDoubtfulShots* m_doubtfulShots = nullptr;
    /// Asks on a thread of the pool whether the service knows a source that was analyzed earlier.
    QFutureWatcher<bool> m_isKnown;
};
