#pragma once

#include <KxCore/KxExport.h>

#include <QWidget>

/// The host's plain widget: paints the background that the style sheet gives it and tells its texts anew when the
/// language changes. User-interface thread only, like every widget.
class KXWIDGETS_API KxWidget : public QWidget
{
    Q_OBJECT
public:
    explicit KxWidget(QWidget* parent = nullptr);
    ~KxWidget() override;

protected:
    /// Called after the language has changed; a derived class sets its texts here.
    virtual void RetranslateUi();
    void changeEvent(QEvent* event) override;
};
