#pragma once

#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxWidget.h>

class QHBoxLayout;

/// The row of buttons at the bottom of a frameless dialog.
class KXWIDGETS_API KxDialogButtonBar : public KxWidget
{
    Q_OBJECT
public:
    explicit KxDialogButtonBar(QWidget* parent);
    ~KxDialogButtonBar() override;

    /// Adds a button at the right end: `type` 0 is a primary one, 1 a secondary one; `index` is its place among the
    /// buttons of that end, -1 the last. The bar owns it.
    KxPushButton* AddPushButton_R(int type, int index);

private:
    QHBoxLayout* m_right = nullptr;
};
