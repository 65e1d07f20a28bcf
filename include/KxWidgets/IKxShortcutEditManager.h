#pragma once

#include <KxCore/KxExport.h>

#include <QKeySequence>

/// The keyboard shortcuts of the host's actions, by action id. The person can change them in the configuration file
/// (group "Shortcuts"; the key is the action id, the value a portable key sequence, empty for no shortcut). An
/// unreadable sequence counts as not set.
class KXWIDGETS_API IKxShortcutEditManager
{
public:
    /// The ids of the actions.
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
        PreviousDoubtfulShot = 3008,
        NextDoubtfulShot = 3009,
        BackToAutomatic = 3010,
    };

    static IKxShortcutEditManager* GetInstance();

    /// Empty for an id without a shortcut.
    virtual QKeySequence keySequence(int actionId) const = 0;

protected:
    virtual ~IKxShortcutEditManager();
};
