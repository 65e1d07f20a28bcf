#pragma once

#include <KxCore/KxExport.h>

#include <QKeySequence>

/// The keyboard shortcuts of the host's actions, by action id; the person may change them in the configuration file
/// (group "Shortcuts", key the action id, value a portable key sequence, empty for none). A sequence that cannot be
/// read counts as not set.
class KXWIDGETS_API IKxShortcutEditManager
{
public:
    /// Ids of actions.
    enum Action {
        Undo = 1000,
        Redo = 1001,
        Delete = 1005,
        PlayPause = 3000,
        Stop = 3001,
        Backward = 3004,
        Forward = 3005,
        PreviousEditPoint = 3006,
        NextEditPoint = 3007,
    };

    static IKxShortcutEditManager* GetInstance();

    /// Empty for an id without a shortcut.
    virtual QKeySequence keySequence(int actionId) const = 0;

protected:
    virtual ~IKxShortcutEditManager();
};
