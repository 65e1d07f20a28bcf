#pragma once

#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>

#include <KxWidgets/KxWidget.h>

#include <QSharedPointer>

#include <memory>
#include <optional>

class KrAutoReframePlayerControlBar;
class KxMediaPlayerPresenter;
class KxMediaPlayerWidget;
class ShadowForm;

/// A pointer to the same helper that shares its ownership; null for null.
QSharedPointer<KrAutoReframeHelper> ShareHelper(const std::shared_ptr<KrAutoReframeHelper>& helper);

/// The preview: a player with its control bar, and over the picture the crop of the current frame, which the user can
/// move. Moving it makes the frame an edited one. The view connects overlay, bar, player and helper; it owns no
/// keyframes.
///
/// Without a helper it only plays. User-interface thread.
class KrAutoReframePlayerView : public KxWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframePlayerView)

public:
    KrAutoReframePlayerView(const QSharedPointer<KrAutoReframeHelper>& helper, QWidget* parent);
    explicit KrAutoReframePlayerView(QWidget* parent);
    ~KrAutoReframePlayerView() override;

    void Pause();
    void Play();

    /// Its parts, for what is added to the view.
    KxMediaPlayerPresenter& Presenter() const;
    KxMediaPlayerWidget& PlayerWidget() const;
    KrAutoReframePlayerControlBar& ControlBar() const;
    ShadowForm& Overlay() const;

    /// Where the result is in the player widget; empty while the source is shown.
    QRectF ResultArea() const;
    /// Of the source, in pixels; 16 x 9 without one.
    QSize VideoSize() const;
    /// Sets the crop of the current frame, as a drag of the overlay does.
    void EditCrop(const QRectF& rect);

    /// Shows the reframed timeline, or the source with the crop over it: the crop is edited only over the whole
    /// picture. Without `fromStart` the player stays at the current frame. Without results it does nothing and returns
    /// false.
    bool SwitchTimeline(bool reframed, bool fromStart);
    /// SwitchTimeline(false, false), but where the source is shown already it is not opened again: the picture stays
    /// while its crop changes.
    bool ShowResultsAtFrame();
    /// Places the overlay over the video picture. Call it when the dialog was moved: the overlay is a window of its
    /// own, unless windows cannot overlay each other. The picture's position is used as the player reports it; only its
    /// size is converted from device pixels.
    void UpdateOverlayGeometry();
    /// Sets the size of the overlay's picture.
    void UpdatePictureSize();
    /// Shows the crop of `frame` and updates buttons and marks. A negative frame changes nothing; the frame after the
    /// last result shows the last result; a later one only updates the marks.
    void RefreshFrame(int frame);

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Only hides the overlay.
    void closeEvent(QCloseEvent* event) override;

private:
    void UpdateOverlay();
    void InitLayout();
    void ConnectSignals();

    void PauseIfPlaying();
    /// During playback no frame counts as edited and the buttons that work on a frame are disabled: an edit could not
    /// be aimed and the outline would flicker.
    void RefreshOverlay(int frame);
    void RefreshButtons(int frame);
    /// Does not repeat a seek whose picture is awaited: a held key would restart it and the picture would never be
    /// shown.
    void SeekTo(uint frame);
    /// The player works on a copy of the keyframes, so the reframed video is opened again after each edit.
    void ShowEdit();

    void HandleFrameChanged(int frame);
    /// The player shows an error message until its next picture: the overlay is hidden as long.
    void HandleFailed();
    void HandleTimelineOpened();
    void HandleRectChanged(const QRectF& rect);
    void HandleUndo();
    void HandleRedo();
    void HandleDelete();
    void HandlePrevious();
    void HandleNext();

    /// Belongs to the player widget.
    KxMediaPlayerPresenter* m_presenter = nullptr;
    KxMediaPlayerWidget* m_playerWidget = nullptr;
    ShadowForm* m_shadowForm = nullptr;
    KrAutoReframePlayerControlBar* m_controlBar = nullptr;
    QSharedPointer<KrAutoReframeHelper> m_helper;
    bool m_isReframedShown = false;
    bool m_isOverlayHiddenByError = false;
    /// The target of a seek to an edit whose picture is awaited.
    std::optional<int> m_seeking;
};
