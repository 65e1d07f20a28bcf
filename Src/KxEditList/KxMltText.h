#pragma once

#include <KxEditList/KxPlacementKeys.h>

#include <QByteArray>

/// Projects of the MLT framework (XML), which its program `melt`, and editors built on it, read.
namespace KxMltText
{
enum class Editor {
    Shotcut, ///< filter `affine`; needs no display
    Kdenlive ///< filter `qtblend`
};

QByteArray Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys, Editor editor);
} // namespace KxMltText
