#include <KxPlayer/KxPlayerToolBarBase.h>

#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToolSlider.h>

#include <QMap>
#include <QVariant>

class KxPlayerToolBarBase::Impl
{
public:
    KxToolSlider* slider = nullptr;
    KxMediaPlayerPresenter* presenter = nullptr;
    QMap<int, QAbstractButton*> buttons;
};

KxPlayerToolBarBase::KxPlayerToolBarBase(QWidget* parent, KxToolSlider* slider, bool seeksWhileDragged)
    : KxWidget(parent)
    , m_impl(new Impl)
{
    setProperty("seeksWhileDragged", seeksWhileDragged);
    m_impl->slider = slider;
    slider->setParent(this);
    m_impl->buttons = {
        {PlayPauseButton, KxSwitchToolButton::CreateSwitchToolButton(this, QStringLiteral("KxPlayerToolBar_play"))},
        {StopButton, KxToolButton::CreateToolButton(this, QStringLiteral("KxPlayerToolBar_stop"))},
        {BackwardButton, KxToolButton::CreateToolButton(this, QStringLiteral("KxPlayerToolBar_backward"))},
        {ForwardButton, KxToolButton::CreateToolButton(this, QStringLiteral("KxPlayerToolBar_forward"))},
    };
    m_impl->buttons.value(BackwardButton)->hide();
    m_impl->buttons.value(ForwardButton)->hide();
}

KxPlayerToolBarBase::~KxPlayerToolBarBase()
{
    delete m_impl;
}

QAbstractButton* KxPlayerToolBarBase::button(int number) const
{
    return m_impl->buttons.value(number);
}

KxToolSlider* KxPlayerToolBarBase::slider() const
{
    return m_impl->slider;
}

KxMediaPlayerPresenter* KxPlayerToolBarBase::playerPresenter() const
{
    return m_impl->presenter;
}

void KxPlayerToolBarBase::setPlayerPresenter(KxMediaPlayerPresenter* presenter)
{
    m_impl->presenter = presenter;
}

void KxPlayerToolBarBase::updateToolTip() {}

void KxPlayerToolBarBase::RetranslateUi()
{
    updateToolTip();
}
