#pragma once

#include <KxCore/KxExport.h>

#include <KxMedia/Container/KxAvHandles.h>

/// The colour fields of pictures. Pure; any thread.
namespace KxPictureColour
{
/// A file can give its colour fields any number. One that libavutil has no name for becomes unspecified: reading it as
/// an enumeration would be undefined.
KXMEDIA_API void RemoveUnknown(AVFrame& picture);

/// Whether the components are red, green and blue, or a palette of them.
bool IsRgb(AVPixelFormat format);

/// Copies primaries, transfer, matrix, range and chroma location. A format that implies full range (yuvj420p) sets the
/// range.
void Copy(const AVFrame& from, AVFrame& to);

/// Copies the brightness of the display that the picture was made for and that of the video, where they are known.
void CopyBrightness(const AVFrame& from, AVFrame& to);

/// For a picture converted from RGB: BT.709 matrix, limited range. A known transfer and known primaries are kept.
void MarkAsConvertedRgb(AVFrame& picture);

/// PQ or HLG.
bool IsHighDynamicRange(const AVFrame& picture);
} // namespace KxPictureColour
