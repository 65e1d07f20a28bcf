#pragma once

/// A width and a height in whole numbers: pixels, or the two terms of an aspect ratio.
struct KxIntSize {
    int width = 0;
    int height = 0;
};

constexpr bool operator==(const KxIntSize& a, const KxIntSize& b)
{
    return a.width == b.width && a.height == b.height;
}
constexpr bool operator!=(const KxIntSize& a, const KxIntSize& b)
{
    return !(a == b);
}
