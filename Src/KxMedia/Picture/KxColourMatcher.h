#pragma once

#include <KxCore/KxResult.h>
#include <KxMedia/Picture/KxVideoFrame.h>

#include <memory>

/// Converts pictures to the colours of a reference. A file has one set of colour fields for all of its pictures, but
/// those of a recording can change on the way. One thread at a time.
class KXMEDIA_API KxColourMatcher
{
public:
    KxColourMatcher();
    ~KxColourMatcher();

    /// The first picture is the reference and comes back as it is. So does a picture in the same colours, or in colours
    /// that cannot be converted. A field that is not specified in one of two pictures counts as equal in both. All
    /// pictures have the same size and format, planar YUV.
    KxVideoFrame Match(const KxVideoFrame& picture);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
