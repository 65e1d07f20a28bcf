#pragma once

#include <KxCore/KxExport.h>

#include <optional>
#include <string>
#include <vector>

/// Where the trained cascades of OpenCV may lie, the first choice first:
/// 1. the folders in the environment variable KX_CASCADES (separated as in PATH),
/// 2. the folder that was found when this was built,
/// 3. ../share/opencv4/haarcascades, ../share/opencv4/lbpcascades and ../share/haarcascades beside the program.
KXSUBJECT_API std::vector<std::string> KxCascadeFolders();

/// The path of a cascade's file; nothing when no folder has it.
KXSUBJECT_API std::optional<std::string> KxFindCascade(const std::string& fileName);
