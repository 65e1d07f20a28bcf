#pragma once

#include <KxEditList/KxPlacementKeys.h>

#include <QByteArray>

/// Keyframes of position and scale as the text that compositing programs take from the clipboard. The layer has its
/// anchor point in the middle; the composition has the size of the output.
namespace KxKeyframeText
{
QByteArray Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys);
} // namespace KxKeyframeText
