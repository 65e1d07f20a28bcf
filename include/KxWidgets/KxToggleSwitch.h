#pragma once

#include <KxCore/KxExport.h>

#include <QAbstractButton>

/// A switch with a text at its left. `toggled(bool)` reports every change.
class KXWIDGETS_API KxToggleSwitch : public QAbstractButton
{
    Q_OBJECT
public:
    explicit KxToggleSwitch(QWidget* parent);
    ~KxToggleSwitch() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect TrackRect() const;
};
