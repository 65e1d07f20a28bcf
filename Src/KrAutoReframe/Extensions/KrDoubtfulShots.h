#pragma once

#include <KrAutoReframe/Engine/KrShotList.h>

#include <KxWidgets/KxWidget.h>

#include <QTimer>

#include <optional>

class KrAutoReframePlayerView;
class KrAutoReframePropertyPanel;
class KxToolButton;

/// The way through the doubtful shots: two buttons in the control bar with their shortcuts, the shots on the slider,
/// and the number of those to look at in the panel. A doubtful shot counts as seen when the picture has rested or
/// played in it for a moment. User-interface thread.
class KrDoubtfulShots : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrDoubtfulShots)

public:
    /// Becomes a part of the view's control bar.
    KrDoubtfulShots(KrAutoReframePlayerView& view, KrAutoReframePropertyPanel& panel);
    ~KrDoubtfulShots() override;

    void SetShots(const KrShotList& shots);
    const KrShotList& Shots() const { return m_shots; }
    /// Shows the first doubtful shot that was not seen; nothing changes without one.
    void GoToFirstToLookAt();

    void RetranslateUi() override;

Q_SIGNALS:
    /// The person has looked at one more doubtful shot.
    void sigSeen();

private:
    void ConnectShortcut(int actionId, void (KrDoubtfulShots::*go)());
    void GoToPrevious();
    void GoToNext();
    void GoTo(int index);
    /// The frame that is shown, or is about to be.
    qint64 CurrentFrame() const;
    void HandleFrameChanged(int frame);
    void HandleLooked();
    void ShowMarks();
    void UpdateButtons();
    QString ToolTipOf(int index) const;

    KrAutoReframePlayerView& m_view;
    KrAutoReframePropertyPanel& m_panel;
    KxToolButton* m_previousButton = nullptr;
    KxToolButton* m_nextButton = nullptr;
    KrShotList m_shots;
    /// The target of a seek whose picture is awaited.
    std::optional<qint64> m_goingTo;
    int m_watched = -1;
    QTimer m_look;
};
