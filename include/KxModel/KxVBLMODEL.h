#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>
#include <KxModel/KxProjectSettings.h>

/// Conversions between facts of a video and the kinds that a project knows. Pure; any thread.
namespace KxVBLMODEL
{
/// The kind nearest to `rate` within 0.01 frames a second, otherwise Custom.
KXMODEL_API KxProjectFrameRateType toFrameRateType(const KxRational& rate);

/// The kind whose ratio `size` has exactly; Unknown for any other (4:5 among them) and for an empty size.
KXMODEL_API KxProjectAspectRatioType toAspectRatioType(const QSize& size);
} // namespace KxVBLMODEL
