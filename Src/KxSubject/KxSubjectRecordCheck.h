#pragma once

#include <KxSubject/KxSubjectRecord.h>

/// Whether a record that was read can be one that an observer made.
namespace KxSubjectRecordCheck
{
/// Sizes, rate and length are those of a video.
bool HasPossibleSource(const KxSubjectRecord& record);

/// The parts fit each other.
bool IsConsistent(const KxSubjectRecord& record);
} // namespace KxSubjectRecordCheck
