#pragma once

#include <QImage>
#include <QSizeF>

/// A picture ready to be painted, and the number of its frame.
struct KxPlayerPicture {
    int frame = 0;
    QImage image;
    /// The aspect ratio of what the picture shows, in pixels of the source.
    QSizeF shape;
    /// The size of the player for which the image was made, device pixels.
    QSize area;
};
