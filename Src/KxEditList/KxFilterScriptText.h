#pragma once

#include <KxEditList/KxPlacementKeys.h>

#include <QByteArray>

/// A filter graph for `ffmpeg -i INPUT -filter_script:v FILE OUTPUT`: commands at the keys' times move the crop.
namespace KxFilterScriptText
{
QByteArray Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys);
} // namespace KxFilterScriptText
