#pragma once

#include <KxCore/KxExport.h>

#include <QToolButton>

/// A button with an icon. The style sheet gives it its icon by its object name.
class KXWIDGETS_API KxToolButton : public QToolButton
{
    Q_OBJECT
public:
    /// `name` becomes the object name, and is not shown as a text.
    static KxToolButton* CreateToolButton(QWidget* parent, const QString& name);
    ~KxToolButton() override;

protected:
    explicit KxToolButton(QWidget* parent);
};
