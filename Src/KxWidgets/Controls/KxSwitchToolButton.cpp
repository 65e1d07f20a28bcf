#include <KxWidgets/KxSwitchToolButton.h>

#include <QStyle>

KxSwitchToolButton::KxSwitchToolButton(QWidget* parent)
    : KxToolButton(parent)
{
}

KxSwitchToolButton* KxSwitchToolButton::CreateSwitchToolButton(QWidget* parent, const QString& name)
{
    auto* button = new KxSwitchToolButton(parent);
    button->setObjectName(name);
    return button;
}

KxSwitchToolButton::~KxSwitchToolButton() = default;

void KxSwitchToolButton::AddTips(const QStringList& tips)
{
    m_tips = tips;
    ShowTip();
}

void KxSwitchToolButton::SetFace(int face)
{
    const int wanted = face == 0 ? 0 : 1;
    if (wanted == m_face) {
        return;
    }
    m_face = wanted;
    style()->unpolish(this);
    style()->polish(this);
    ShowTip();
    update();
}

void KxSwitchToolButton::ShowTip()
{
    setToolTip(m_tips.value(m_face));
}
