#pragma once

#include <KrAutoReframe/Extensions/KrGuideOverlay.h>

#include <KxWidgets/KxWidget.h>

class KrAutoReframePlayerView;
class KxToolButton;
class QAction;
class QMenu;

/// The "View" button in the control bar, whose menu turns the guides over the result on and off. They are drawn over
/// the crop while it is adjusted and over the result in the preview, and are not part of an export. The choice is
/// stored in the host's configuration file. User-interface thread.
class KrViewMenu : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrViewMenu)

public:
    /// Becomes a part of the view's control bar.
    explicit KrViewMenu(KrAutoReframePlayerView& view);
    ~KrViewMenu() override;

    /// Adds the entry that compares aspect ratios, disabled at first. Only once.
    void AddComparison();
    void SetComparisonEnabled(bool isEnabled);

    void RetranslateUi() override;

Q_SIGNALS:
    void sigCompare();

private:
    struct Entry {
        QAction* action;
        KrGuideOverlay::Guide guide;
    };

    QAction* AddGuide(KrGuideOverlay::Guide guide, const QString& name);
    void CreateOverlays();
    KrGuideOverlay::Guides Chosen() const;
    void Restore();
    void ApplyChoice();

    KrAutoReframePlayerView& m_view;
    KxToolButton* m_button = nullptr;
    QMenu* m_menu = nullptr;
    QList<Entry> m_guides;
    /// Null without it.
    QAction* m_compare = nullptr;
    /// Children of what they are drawn over.
    QList<KrGuideOverlay*> m_overlays;
};
