#pragma once

#include <KxCore/KxExport.h>

#include <QComboBox>

/// A choice from a list. The mouse wheel changes it only while it has the focus.
class KXWIDGETS_API KxComboBox : public QComboBox
{
    Q_OBJECT
public:
    static KxComboBox* CreateComboBox(QWidget* parent);
    ~KxComboBox() override;

    void hidePopup() override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    explicit KxComboBox(QWidget* parent);
};
