#pragma once

#include <Apps/CropTracks/CropTrackFile.h>
#include <KxSubject/KxSubjectFindings.h>

/// The findings of an analysis as one self-contained page: no network, no scripts, no other file.
namespace AnalysisReport
{
/// The page in UTF-8. `track` holds at least one crop; `sheet` is the contact sheet, a JPEG picture.
QByteArray Format(const CropTrack& track, const KxSubjectFindings& findings, const QByteArray& sheet);
} // namespace AnalysisReport
