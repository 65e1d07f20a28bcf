#pragma once

#include <KxSubject/KxIntSize.h>

#include <cstddef>
#include <cstdint>

/// A picture in memory that it does not own: three bytes a pixel (blue, green, red), rows from top to bottom.
struct KxPictureView {
    const std::uint8_t* data = nullptr;
    KxIntSize sizePx;
    std::size_t bytesPerRow = 0; ///< from the start of one row to the start of the next
};
