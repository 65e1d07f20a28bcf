#include <opencv2/core/utility.hpp>

namespace
{
/// OpenCV works in the tests as it does in the programs, on the calling thread alone (KxOpenCvProcess::Prepare()): how
/// its own threads wait for each other is hidden inside TBB, and ThreadSanitizer would report every end of such work as
/// a race.
[[maybe_unused]] const bool OnOneThread = (cv::setNumThreads(1), true);
} // namespace
