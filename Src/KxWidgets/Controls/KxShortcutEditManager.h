#pragma once

#include <KxWidgets/IKxShortcutEditManager.h>

/// The shortcuts as the configuration file has them at the moment of asking, else our own.
class KxShortcutEditManager : public IKxShortcutEditManager
{
public:
    KxShortcutEditManager();
    ~KxShortcutEditManager() override;

    QKeySequence keySequence(int actionId) const override;
};
