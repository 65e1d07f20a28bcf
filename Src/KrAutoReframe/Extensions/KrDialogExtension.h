#pragma once

#include <KrAutoReframe/Extensions/KrEditPictures.h>
#include <KrAutoReframe/KrAutoReframeExtensions.h>
#include <KxModel/IKxAutoReframeChoices.h>

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class KrAutoReframePlayerView;
class KrAutoReframeProcess;
class KrAutoReframePropertyPanel;
class KrChoiceList;
class KrDoubtfulShots;
class KrExportStatus;
class KrFollowControls;
class KrGrowingCrop;
class KrRatioComparison;
class KrViewMenu;

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
        /// Analyzes the source with these settings, as far as the service has not looked at it before.
        std::function<void(int width, int height, int speed)> analyze;
    };

    KrDialogExtension(KrAutoReframeExtensions& host, const Parts& parts, QObject* parent);
    ~KrDialogExtension() override;

    /// Call it before another source is opened: changes of the edits until then are not the person's.
    void LeaveSource();
    /// Waits a moment for the end of the analysis that was just started. False if it takes longer, so that its progress
    /// has to be shown.
    bool EndsSoon();
    /// If what was just started decides on a choice, shows from now on how the crop grows, and needs no other display
    /// of progress. Otherwise false.
    bool ShowsGrowth();
    /// Call it before an analysis is started.
    void StopGrowth();
    /// Whether the next result is shown at the player's frame, and not from the beginning: the person knows the video.
    bool StaysAtFrame() const;
    /// Call it when an analysis has succeeded and its result is shown.
    void ShowResults();

private:
    struct Settings {
        int width = 0;
        int height = 0;
        int speed = 0;

        bool operator==(const Settings& other) const
        {
            return width == other.width && height == other.height && speed == other.speed;
        }
    };

    Settings PanelSettings() const;
    void Analyze(const Settings& settings);
    void CreateFollowControls();
    void CreateViewMenu();
    void CreateHelp();
    void Compare();
    void FillComparison();
    void HandleGrowth();
    void EnterSource();
    /// Shows the crops that the host gave with the video. False without any.
    bool ShowGivenCrops();
    void HandleKnown();
    /// Takes over the choices as the analysis found them in a video that was cut differently when they were made.
    void TakePlacedChoices();
    void ShowShots();
    void HandleSettingsChanged();
    void HandleChoicesChanged();
    /// Shows what the person chose, in the aspect ratio and speed that are on the screen.
    void DecideAgain();
    void ShowChoices();
    /// Where the analysis lost what the person pointed at.
    void ShowLosses();
    /// An edit rules the crop of the frame on the screen.
    bool ShowsEdit() const;
    /// Ends the hint that the edit stays, once the frame on the screen shows none.
    void UpdateEditHint();
    double FrameRate() const;
    void UpdateHint();
    void ShowResultSize();
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
    /// What they were made with.
    Settings m_shown;
    QList<KxAutoReframeChoice> m_shownChoices;
    /// For the person: what happened to choices that were made for another cut of the video; empty: nothing.
    QString m_placement;
    /// The person chose something at a frame that shows an edit, which stays.
    bool m_editStays = false;
    KrEditPictures m_edits;
    /// Null if the host's service has no shots.
    KrDoubtfulShots* m_doubtfulShots = nullptr;
    KrExportStatus* m_exportStatus;
    KrViewMenu* m_viewMenu = nullptr;
    /// Null until the person asks for it.
    std::unique_ptr<KrRatioComparison> m_comparison;
    /// Several changes fill the comparison once.
    QTimer m_fillComparison;
    KrChoiceList* m_choices;
    /// Null if the host's service takes no choices.
    KrFollowControls* m_followControls = nullptr;
    /// A change of the choices is decided after the event that made it: several are decided at once.
    QTimer m_decide;
    /// Null if the host's service has no partial results.
    KrGrowingCrop* m_growth = nullptr;
    /// The analysis that is being started decides on the choices.
    bool m_isDeciding = false;
    /// An analysis was stopped, which may have replaced what the service and the helper knew.
    bool m_mustDecide = false;
    /// Asks on a thread of the pool whether the service knows a source that was analyzed earlier.
    QFutureWatcher<bool> m_isKnown;
};
