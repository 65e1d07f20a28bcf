#pragma once

#include <KxSubject/KxFaceModels.h>

#include <string>

/// Models that are installed on this machine.
namespace InstalledModels
{
/// The bytes of a file; empty if it cannot be read.
std::string ContentsOf(const std::string& path);

/// OpenCV's cascades; both empty if the package opencv-data is missing.
KxFaceModels Cascades();

/// The path of a neural face detector beside the source tree; the file may be missing.
std::string DetectorPath();

/// What Packaging/install-models has installed; empty if it has not.
std::string ObjectDetector();
} // namespace InstalledModels
