#pragma once

#include <KxCore/KxTrackEvent.h>

/// A click in the Auto Reframe dialog.
class KXCORE_API KrAutoReframeClickEvent : public KxTrackEvent
{
public:
    explicit KrAutoReframeClickEvent(const QString& name);
    ~KrAutoReframeClickEvent() override;
};
