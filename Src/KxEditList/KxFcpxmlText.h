#pragma once

#include <KxEditList/KxPlacementKeys.h>

#include <QByteArray>

/// FCPXML 1.10, the exchange format of Final Cut Pro, which other editors import as well: a project of the output's
/// size with the whole clip, whose transform has keys. All times are fractions on the frame grid.
namespace KxFcpxmlText
{
QByteArray Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys);
} // namespace KxFcpxmlText
