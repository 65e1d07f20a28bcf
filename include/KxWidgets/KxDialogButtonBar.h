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

    /// Adds a button at the right end, owned by the bar. `type` 0 is a primary button, 1 a secondary one. `index` is
    /// its position among the buttons of that end; -1 means the last.
    KxPushButton* AddPushButton_R(int type, int index);

private:
    QHBoxLayout* m_right = nullptr;
};
