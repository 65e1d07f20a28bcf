#pragma once

#include <KxCore/KxExport.h>

#include <QWidget>

/// The host's basic widget: paints the background that the style sheet sets, and updates its texts when the language
/// changes. User-interface thread only, like every widget.
class KXWIDGETS_API KxWidget : public QWidget
{
    Q_OBJECT
public:
    explicit KxWidget(QWidget* parent = nullptr);
    ~KxWidget() override;

protected:
    /// Called after a change of language; a derived class sets its texts here.
    virtual void RetranslateUi();
    void changeEvent(QEvent* event) override;
};
