#pragma once

#include <KxCore/KxExport.h>

#include <QLabel>

/// A line of text.
class KXWIDGETS_API KxLabel : public QLabel
{
    Q_OBJECT
public:
    static KxLabel* CreateLabel(QWidget* parent, const QString& text);
    ~KxLabel() override;

private:
    explicit KxLabel(QWidget* parent);
};
