#include <KxWidgets/KxDialogButtonBar.h>

#include <QHBoxLayout>

namespace
{

/// As of a dialog's content, so that both end at the same place.
constexpr int SideMarginPx = 24;
constexpr int BottomMarginPx = 16;
constexpr int GapPx = 8;
constexpr int ButtonHeightPx = 32;

} // namespace

KxDialogButtonBar::KxDialogButtonBar(QWidget* parent)
    : KxWidget(parent)
    , m_right(new QHBoxLayout)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(SideMarginPx, GapPx, SideMarginPx, BottomMarginPx);
    layout->setSpacing(GapPx);
    layout->addStretch(1);
    m_right->setSpacing(GapPx);
    layout->addLayout(m_right);
}

KxDialogButtonBar::~KxDialogButtonBar() = default;

KxPushButton* KxDialogButtonBar::AddPushButton_R(int type, int index)
{
    KxPushButton* button = type == 0 ? KxPushButton::CreatePrimaryButton(this, ButtonHeightPx)
                                     : KxPushButton::CreateSecondaryButton(this, ButtonHeightPx);
    m_right->insertWidget(index, button);
    if (type == 0) {
        button->setDefault(true);
    }
    return button;
}
