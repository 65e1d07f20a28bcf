#pragma once

#include <KxMedia/Read/KxMediaClock.h>

#include <QImage>
#include <QSizeF>

#include <memory>

/// A picture ready to be painted, and the number of its frame.
struct KxPlayerPicture {
    int frame = 0;
    QImage image;
    /// The aspect ratio of what the picture shows, in pixels of the source.
    QSizeF shape;
    /// The size of the player for which the image was made, device pixels.
    QSize area;
    /// That of its file, which places the sound; null only in a picture that was not made.
    std::shared_ptr<const KxMediaClock> fileClock;
};
