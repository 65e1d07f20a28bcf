#pragma once

#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Picture/KxVideoFrame.h>

#include <functional>

/// Decoded pictures made of numbers, and ways to look at the numbers again.
namespace MadePicture
{
/// The value of sample (x, y) of a plane, counted in that plane's own samples.
using Value = std::function<int(int plane, int x, int y)>;

/// A picture of a format whose components stand in planes; 8 bits or more.
KxAvFrame Make(AVPixelFormat format, const QSize& size, const Value& value);

/// As the reader would deliver it. An empty displayed size means that of the picture.
KxVideoFrame Wrap(KxAvFrame picture, qint64 index = 0, const KxVideoFrame::Orientation& turn = {});

/// How many samples a plane has.
QSize PlaneSize(const AVFrame& picture, int plane);
int Sample(const AVFrame& picture, int plane, int x, int y);
double Mean(const AVFrame& picture, int plane);
/// Peak signal to noise of 8-bit planes of the same size, dB; 100 for equal ones.
double Psnr(const AVFrame& a, const AVFrame& b, int plane);

/// A smooth picture with some texture, 8 bits, the same each time it is asked for.
int Texture(int plane, int x, int y);
} // namespace MadePicture
