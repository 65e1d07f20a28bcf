#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>
#include <optional>

/// What KxConfig and KxScreen report in place of the machine's own facts, for a program without a person, such as a
/// test. A member without a value leaves that fact as it is. User-interface thread.
struct KxMachineFacts {
    std::function<bool(int algorithm)> algorithmEnabled;
    std::function<qint64(const QString& path)> freeSpaceMb;
    std::optional<double> devicePixelRatio;
    std::optional<bool> canOverlayWindows;

    /// The replacements of this process; at first none.
    KXCORE_API static KxMachineFacts& Replaced();
};
