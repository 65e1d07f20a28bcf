#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxIntSize.h>

/// The direction in which a crop of full size can move.
enum class KxAxis { Across, UpDown };

/// Where crops of one aspect can lie inside the part of a picture that is not bars. Pure numbers.
class KXSUBJECT_API KxCropGeometry
{
public:
    /// `content` in fractions of the picture. Sizes and aspect below 1 count as 1.
    KxCropGeometry(KxIntSize picturePx, KxIntSize aspect, const KxCropRect& content);

    KxAxis FreeAxis() const { return m_axis; }
    /// The crop's extent along the free axis, as a fraction of the picture's.
    double Extent() const { return m_axis == KxAxis::Across ? m_width : m_height; }
    /// The width of a 9:16 crop as a share of this one's, at most 1; 1 for a crop that moves up and down.
    double NarrowShare() const;
    /// Centres of the crop along the free axis, in fractions of the picture; equal when the crop cannot move.
    double MinimumCentre() const;
    double MaximumCentre() const;
    /// The crop around a centre; a centre out of reach gives the nearest crop that is inside.
    KxCropRect At(double centre) const;

private:
    KxCropRect m_content;
    double m_ratio;
    double m_width = 1.0;
    double m_height = 1.0;
    KxAxis m_axis = KxAxis::Across;
};
