#pragma once

#include <KxWidgets/KxWidget.h>

class KxMediaPlayerPresenter;
class KxToolSlider;
class QAbstractButton;

/// The bar under a player: a slider and the transport buttons, working on a presenter. A derived class lays them out.
class KXPLAYER_API KxPlayerToolBarBase : public KxWidget
{
    Q_OBJECT
public:
    /// Numbers of the transport buttons; play/pause is a KxSwitchToolButton.
    enum Button { PlayPauseButton = 1, StopButton = 3, BackwardButton = 4, ForwardButton = 5 };

    /// The bar takes `slider`. With `seeksWhileDragged` the presenter follows the slider during a drag, else at its
    /// end.
    KxPlayerToolBarBase(QWidget* parent, KxToolSlider* slider, bool seeksWhileDragged);
    ~KxPlayerToolBarBase() override;

    /// Null for a number that is none of the above.
    QAbstractButton* button(int number) const;
    KxToolSlider* slider() const;
    KxMediaPlayerPresenter* playerPresenter() const;
    /// Connects buttons, slider and the transport's shortcuts to `presenter`; null disconnects. The presenter is
    /// borrowed.
    void setPlayerPresenter(KxMediaPlayerPresenter* presenter);

    /// Sets every tooltip; also called when the language has changed.
    virtual void updateToolTip();

protected:
    void RetranslateUi() override;

private:
    class Impl;
    Impl* const m_impl;
};
