#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <QSize>
#include <QSizeF>
#include <QString>

/// How large a video is written. A plain value; the default is as large as the crop. At most one of exact size, height
/// and shorter side is set.
struct KXCORE_API KxOutputSize {
    QSize exact; ///< empty: not set
    int heightPx = 0;
    int shortSidePx = 0;

    /// "1080x1920" or "2160p", a height. Nothing for what cannot be a size.
    static std::optional<KxOutputSize> Parse(const QString& text);

    bool IsThatOfTheCrop() const { return exact.isEmpty() && heightPx == 0 && shortSidePx == 0; }
    /// The even size of a video that shows crops of the size `crop`; `crop` itself, rounded, is `cropSize`. On
    /// failure, because the exact size has another shape, returns a clause that names the size which has the right one.
    KxResult<QSize> For(const QSizeF& crop, const QSize& cropSize) const;
    /// Whether the picture of a crop that is written as `cropSize` is enlarged to become `size`.
    static bool Enlarges(const QSize& size, const QSize& cropSize);
};
