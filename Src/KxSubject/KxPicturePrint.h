#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxPictureView.h>

#include <cstdint>

/// What one picture of a video looks like, in 64 bits: pictures that look alike differ in few of them, whatever their
/// size, compression and colours.
struct KxPicturePrint {
    std::int32_t frame = 0;
    /// Two halves: hours of prints are kept, and one large number would leave a gap in each.
    std::uint32_t upper = 0;
    std::uint32_t lower = 0;

    std::uint64_t Bits() const { return std::uint64_t{upper} << 32U | lower; }
};

/// The print of a picture: whether it darkens to the right at each of 8 x 8 places. Even areas have no bits. 0 if the
/// picture is smaller than 9 x 8 pixels.
KXSUBJECT_API std::uint64_t KxPrintOf(const KxPictureView& picture);

/// The number of bits in which two prints differ: 0 to 64; about 2 for the same picture in another compression, about
/// 25 for pictures that have nothing in common.
KXSUBJECT_API int KxPrintDistance(std::uint64_t a, std::uint64_t b);
