#include <KxPlayer/KxPlayerToolBarBase.h>

#include <KxPlayer/KxPlayerToolBarImpl.h>

KxPlayerToolBarBase::KxPlayerToolBarBase(QWidget* parent, KxToolSlider* slider, bool seeksWhileDragged)
    : KxWidget(parent)
    , m_impl(new Impl(this, slider, seeksWhileDragged))
{
    m_impl->UpdateTips();
}

KxPlayerToolBarBase::~KxPlayerToolBarBase() = default;

QAbstractButton* KxPlayerToolBarBase::button(int number) const
{
    return m_impl->Button(number);
}

KxToolSlider* KxPlayerToolBarBase::slider() const
{
    return m_impl->Slider();
}

KxMediaPlayerPresenter* KxPlayerToolBarBase::playerPresenter() const
{
    return m_impl->Presenter();
}

void KxPlayerToolBarBase::setPlayerPresenter(KxMediaPlayerPresenter* presenter)
{
    m_impl->SetPresenter(presenter);
}

void KxPlayerToolBarBase::updateToolTip()
{
    m_impl->UpdateTips();
}

void KxPlayerToolBarBase::RetranslateUi()
{
    updateToolTip();
}
