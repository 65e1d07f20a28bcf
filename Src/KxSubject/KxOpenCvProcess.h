#pragma once

#include <KxCore/KxExport.h>

#include <string>

namespace KxOpenCvProcess
{
/// For a program of this product, before its first analysis: OpenCV runs on the calling thread alone (more threads make
/// the analysis no faster) and logs nothing. Both are settings of the whole process, so the library never touches them
/// by itself: its host may use OpenCV too.
KXSUBJECT_API void Prepare();
/// Of the library that runs, such as "4.6.0".
KXSUBJECT_API std::string Version();
} // namespace KxOpenCvProcess
