#pragma once

#include <KxWidgets/IKxShortcutEditManager.h>

/// Reads each shortcut from the configuration file when it is asked for; the default one if it is not set there.
class KxShortcutEditManager : public IKxShortcutEditManager
{
public:
    KxShortcutEditManager();
    ~KxShortcutEditManager() override;

    QKeySequence keySequence(int actionId) const override;
};
