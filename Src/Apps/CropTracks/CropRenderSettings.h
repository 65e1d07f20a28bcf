#pragma once

#include <KxCore/KxOutputSize.h>
#include <KxRender/KxRenderSettings.h>

#include <QRectF>

class KxMediaItem;

namespace CropRenderSettings
{
/// The size of the video if `media` is cut to `crop`, in fractions of the picture. On failure, because the picture is
/// too small or `size` has another shape than the crop, a clause to append to a message.
KxResult<QSize> Size(const KxMediaItem& media, const QRectF& crop, const KxOutputSize& size);

/// What it is rendered to; without a path. Fails like Size().
KxResult<KxRenderSettings> For(const KxMediaItem& media, const QRectF& crop, const KxOutputSize& size);
} // namespace CropRenderSettings
