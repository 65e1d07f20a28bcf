#pragma once

#include <KxCore/KxExport.h>

#include <KxMedia/Container/KxAvHandles.h>

/// The colour fields of pictures. Pure; any thread.
namespace KxPictureColour
{
/// A file can give its colour fields any number. One that libavutil has no name for becomes unspecified: reading it as
/// an enumeration would be undefined.
KXMEDIA_API void RemoveUnknown(AVFrame& picture);

/// Components red, green and blue, or a palette of them.
bool IsRgb(AVPixelFormat format);

/// Primaries, transfer, matrix, range and the siting of chroma. A format that is full range by its name (yuvj420p)
/// becomes a range.
void Copy(const AVFrame& from, AVFrame& to);

/// What was RGB is now BT.709 in limited range; a transfer or primaries that were known stay.
void MarkAsConvertedRgb(AVFrame& picture);

/// PQ or HLG.
bool IsHighDynamicRange(const AVFrame& picture);
} // namespace KxPictureColour
