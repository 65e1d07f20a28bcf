#pragma once

#include <KxRender/KxRenderSettings.h>

#include <QRectF>

class KxMediaItem;

namespace CropRenderSettings
{
/// What `media` is rendered to when it is cut to `crop`, given in fractions of the picture; without a path. The
/// resolution is empty if the picture is too small.
KxRenderSettings For(const KxMediaItem& media, const QRectF& crop);
} // namespace CropRenderSettings
