#pragma once

#include <KxWidgets/KxWidget.h>

class KxMediaPlayerPresenter;
class KxToolSlider;
class QAbstractButton;

/// The bar below a player: a slider and the transport buttons, which control a presenter. A derived class lays them
/// out.
class KXPLAYER_API KxPlayerToolBarBase : public KxWidget
{
    Q_OBJECT
public:
    /// The numbers of the transport buttons. The play button is a KxSwitchToolButton.
    enum Button { PlayPauseButton = 1, StopButton = 3, BackwardButton = 4, ForwardButton = 5 };

    /// The bar becomes the parent of `slider`. With `seeksWhileDragged` the presenter follows the slider during a drag,
    /// otherwise at the end of the drag.
    KxPlayerToolBarBase(QWidget* parent, KxToolSlider* slider, bool seeksWhileDragged);
    ~KxPlayerToolBarBase() override;

    /// Null for any other number.
    QAbstractButton* button(int number) const;
    KxToolSlider* slider() const;
    KxMediaPlayerPresenter* playerPresenter() const;
    /// Connects buttons, slider and the transport's shortcuts to `presenter`, which is borrowed. Null disconnects.
    void setPlayerPresenter(KxMediaPlayerPresenter* presenter);

    /// Sets every tooltip; also called when the language has changed.
    virtual void updateToolTip();

protected:
    void RetranslateUi() override;

private:
    class Impl;
    Impl* const m_impl;
};
