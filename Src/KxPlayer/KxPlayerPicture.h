#pragma once

#include <QImage>
#include <QSizeF>

/// A picture as it is to be painted, with the number of the frame that it belongs to.
struct KxPlayerPicture {
    int frame = 0;
    QImage image;
    /// Width to height of what the picture shows, in pixels of the source.
    QSizeF shape;
    /// Of the player that the image was made for, device pixels.
    QSize area;
};
