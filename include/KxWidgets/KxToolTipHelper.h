#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

/// Shows tooltips: an event filter for whoever wants its children's tooltips in the host's look and timing.
class KXWIDGETS_API KxToolTipHelper : public QObject
{
    Q_OBJECT
public:
    static KxToolTipHelper* GetInstance();
    ~KxToolTipHelper() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    KxToolTipHelper();
};
