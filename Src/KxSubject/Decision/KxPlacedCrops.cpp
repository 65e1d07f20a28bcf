#include <KxSubject/Decision/KxPlacedCrops.h>

#include <algorithm>
#include <optional>

namespace
{

/// The middle of the boxes along the crop's free axis; nothing where there are none or they do not fit into it.
std::optional<double> FittingCentre(const std::vector<KxSubjectBox>& boxes, const KxCropGeometry& geometry)
{
    const bool across = geometry.FreeAxis() == KxAxis::Across;
    double low = 1.0;
    double high = 0.0;
    for (const KxSubjectBox& box : boxes) {
        low = std::min(low, across ? box.x : box.y);
        high = std::max(high, across ? box.x + box.width : box.y + box.height);
    }
    if (boxes.empty() || high - low > geometry.Extent()) {
        return std::nullopt;
    }
    return (low + high) / 2.0;
}

} // namespace

KxPlacedCrops KxPlacedCropsOf(const KxSubjectChoices& choices, const KxChoiceRanges& ranges,
                              const KxCropGeometry& geometry)
{
    const bool across = geometry.FreeAxis() == KxAxis::Across;
    KxPlacedCrops placed;
    for (const KxChoiceRanges::Range& range : ranges.Placed()) {
        const KxSubjectChoice& choice = choices[range.choice];
        std::optional<double> centre;
        if (choice.kind == KxChoiceKind::Hold) {
            centre = across ? choice.centreX : choice.centreY;
        } else if (choice.kind == KxChoiceKind::Fit) {
            centre = FittingCentre(choice.boxes, geometry);
            if (!centre) {
                placed.whole.push_back(range);
            }
        }
        if (centre) {
            placed.held.push_back(
                {range.first, range.end, std::clamp(*centre, geometry.MinimumCentre(), geometry.MaximumCentre())});
        }
    }
    return placed;
}
