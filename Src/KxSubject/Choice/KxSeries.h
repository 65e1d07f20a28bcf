#pragma once

#include <KxCore/KxExport.h>

#include <cstddef>
#include <vector>

/// Numbers at equal steps of time. Windows that reach over an end are cut off there.
namespace KxSeries
{
using Values = std::vector<double>;

/// The means of what is at most `reach` steps away.
KXSUBJECT_API Values MeansAround(const Values& values, std::size_t reach);

/// How far each value is from the local mean, in local standard deviations: what is loud in a quiet place counts like
/// what is very loud in a loud one. The deviation is at least half of that of all values; scores are limited
/// to +-3.
KXSUBJECT_API Values LocalScores(const Values& values, std::size_t meanReach, std::size_t deviationReach);

/// `values` less the part that rises and falls with `other`, by linear regression over what is at most `reach` steps
/// away; what falls while the other rises stays.
KXSUBJECT_API Values WithoutWhatFollows(const Values& values, const Values& other, std::size_t reach);

/// The value below which `share` of them are; `values` is not empty.
KXSUBJECT_API double Percentile(Values values, double share);
} // namespace KxSeries
