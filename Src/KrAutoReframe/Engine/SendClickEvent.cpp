#include <KrAutoReframe/Engine/SendClickEvent.h>

#include <KxCore/KrAutoReframeClickEvent.h>

void SendClickEvent(const QString& name)
{
    KrAutoReframeClickEvent event(name);
    event.sendEvent();
}
