#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectRecord.h>

#include <optional>
#include <string>
#include <string_view>

/// A record as bytes, the same on every machine.
namespace KxSubjectRecordFormat
{
/// Grows with every change of the format, and of what the signals measure: older records are made anew.
constexpr std::uint32_t Version = 9;

KXSUBJECT_API std::string Write(const KxSubjectRecord& record);

/// Nothing if the bytes are damaged, of another version, or contain anything that no observer would have seen. Whether
/// the record is of the video at hand, its number of frames above all, is for the caller to compare. Throws
/// std::bad_alloc.
KXSUBJECT_API std::optional<KxSubjectRecord> Read(std::string_view bytes);
} // namespace KxSubjectRecordFormat
