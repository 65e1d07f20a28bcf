#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Picture/KxVideoFrame.h>

/// Turns and mirrors pictures whose components stand in planes of whole bytes or words. Pure; any thread.
namespace KxPictureTurner
{
/// `target` has the format of `source` and its size, with sides exchanged for a quarter turn; chroma is as much
/// subsampled across as down. Colour fields are not touched.
void Turn(const AVFrame& source, const KxVideoFrame::Orientation& turn, AVFrame& target);
} // namespace KxPictureTurner
