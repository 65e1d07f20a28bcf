#pragma once

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxPlayerToolBarBase.h>
#include <KxWidgets/KxToolSlider.h>

#include <QMap>
#include <QPointer>
#include <QTimer>

#include <optional>

class KxSwitchToolButton;
class QShortcut;

/// The implementation of a player's tool bar: its buttons, its slider and their connections to a presenter. A child of
/// the bar; user-interface thread only.
///
/// While the slider is dragged, each seek waits until the picture of the previous one is shown, so that the person sees
/// the pictures pass. If that takes too long, as between distant key frames, the newest position replaces it. The
/// newest position is always shown last.
class KxPlayerToolBarBase::Impl : public QObject
{
public:
    Impl(KxPlayerToolBarBase* bar, KxToolSlider* slider, bool seeksWhileDragged);
    ~Impl() override;

    QAbstractButton* Button(int number) const { return m_buttons.value(number, nullptr); }
    KxToolSlider* Slider() const { return m_slider; }
    KxMediaPlayerPresenter* Presenter() const { return m_presenter; }
    void SetPresenter(KxMediaPlayerPresenter* presenter);
    void UpdateTips();

    /// A shortcut takes its key from every other widget, so it is disabled together with its button.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddButton(int number, QAbstractButton* button, int action);
    void ConnectSlider();
    void TogglePlaying();
    void ShowFrame(int frame);
    void ShowPlaying(bool playing);
    void TakeRange();
    void BeginDrag();
    void Drag(double value);
    void EndDrag(double value);
    /// Shows the frame before (-1) or after (1). While a picture is awaited, steps add up and wait for it as a drag
    /// does: a held key shows pictures go by.
    void Step(int frames);
    void SeekTo(int frame);
    void SeekNext();
    /// Abandons a seek that takes too long if there is a newer position.
    void TakeOver();

    KxPlayerToolBarBase* const m_bar;
    const QPointer<KxToolSlider> m_slider;
    const bool m_seeksWhileDragged;
    QMap<int, QAbstractButton*> m_buttons;
    QMap<int, QShortcut*> m_shortcuts;
    KxSwitchToolButton* m_play = nullptr;
    QPointer<KxMediaPlayerPresenter> m_presenter;

    bool m_isDragging = false;
    /// What is awaited was asked for by steps; the slider follows the pictures.
    bool m_isStepping = false;
    std::optional<int> m_seeking;
    std::optional<int> m_nextSeek;
    /// Restarted by each seek.
    QTimer m_patience;
};
