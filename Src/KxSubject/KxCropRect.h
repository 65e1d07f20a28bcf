#pragma once

/// A crop in fractions of the upright picture.
struct KxCropRect {
    double x = 0.0;
    double y = 0.0;
    double width = 1.0;
    double height = 1.0;
};
