#pragma once

#include <KxCore/KxRational.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <QList>
#include <QRectF>
#include <QSize>

/// The rules that derive export parameters from a source. Pure.
namespace KrExportParameters
{
constexpr float DefaultFrameRate = 25.0F;
constexpr int DefaultVideoBitRate = 2000000; ///< bits a second
constexpr int DefaultAudioBitRate = 192000;  ///< bits a second

/// The pixel size of a crop given in fractions of `source`: each side rounded (halves away from zero) and, where that
/// is odd, moved to the even neighbour on the side of the exact value.
QSize EvenResolution(const QSize& source, const QRectF& cropRatio);

/// The crop that has the shape of the result: the first one of the aspect ratio `aspect`. Where shots show the whole
/// picture, fitted, it need not be that of the first frame; where all do, it is the middle of the picture. `results` is
/// not empty.
QRectF ShapeOfResult(const QList<IKxAutoReframeResult>& results, const QSize& source, const QSize& aspect);

/// Frames a second, at most 60. 24000/1001 gives exactly 23.97, the editor's own name for that rate; 0
/// when the rate is unknown.
double FrameRate(const KxRational& source);

/// Bits a second, 256000 to 150000000.
int VideoBitRate(int source);

/// Bits a second, 96000 to 320000.
int AudioBitRate(int source);
} // namespace KrExportParameters
