#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectChoices.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <optional>

/// The extent of what a person points at, as the object detector saw it: the box around the place whose middle is
/// nearest, between two looks on the line from one to the other. `x` and `y` are fractions of the picture. Nothing if
/// no box is there, or only one that is too wide for one thing.
KXSUBJECT_API std::optional<KxSubjectBox> KxDetectedBoxAt(const KxSubjectRecord& record,
                                                          const KxSubjectOptions::Detections& options,
                                                          std::int64_t frame, double x, double y);
