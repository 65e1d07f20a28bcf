#include <KxSubject/KxCropGeometry.h>

#include <algorithm>

namespace
{

constexpr double NarrowRatio = 9.0 / 16.0;

} // namespace

KxCropGeometry::KxCropGeometry(KxIntSize picturePx, KxIntSize aspect, const KxCropRect& content)
    : m_content(content)
    , m_ratio(static_cast<double>(std::max(aspect.width, 1)) / std::max(aspect.height, 1))
{
    const double widthPx = std::max(picturePx.width, 1) * content.width;
    const double heightPx = std::max(picturePx.height, 1) * content.height;
    if (widthPx >= heightPx * m_ratio) {
        m_axis = KxAxis::Across;
        m_width = content.width * (heightPx * m_ratio / widthPx);
        m_height = content.height;
    } else {
        m_axis = KxAxis::UpDown;
        m_width = content.width;
        m_height = content.height * (widthPx / m_ratio / heightPx);
    }
}

double KxCropGeometry::NarrowShare() const
{
    return m_axis == KxAxis::Across ? std::min(1.0, NarrowRatio / m_ratio) : 1.0;
}

double KxCropGeometry::MinimumCentre() const
{
    return (m_axis == KxAxis::Across ? m_content.x : m_content.y) + Extent() / 2.0;
}

double KxCropGeometry::MaximumCentre() const
{
    const double end = m_axis == KxAxis::Across ? m_content.x + m_content.width : m_content.y + m_content.height;
    return std::max(MinimumCentre(), end - Extent() / 2.0);
}

KxCropRect KxCropGeometry::At(double centre) const
{
    const double start = std::clamp(centre, MinimumCentre(), MaximumCentre()) - Extent() / 2.0;
    if (m_axis == KxAxis::Across) {
        return {start, m_content.y, m_width, m_height};
    }
    return {m_content.x, start, m_width, m_height};
}
