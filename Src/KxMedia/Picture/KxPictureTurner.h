#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Picture/KxVideoFrame.h>

/// Turns and mirrors planar pictures with samples of whole bytes or 16-bit words. Pure; any thread.
namespace KxPictureTurner
{
/// `target` has the format of `source` and its size, with sides exchanged for a quarter turn; chroma subsampling is
/// equal in both directions. Colour fields are not changed.
void Turn(const AVFrame& source, const KxVideoFrame::Orientation& turn, AVFrame& target);
} // namespace KxPictureTurner
