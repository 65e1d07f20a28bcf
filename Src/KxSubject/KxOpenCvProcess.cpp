#include <KxSubject/KxOpenCvProcess.h>

#include <opencv2/core/utility.hpp>
#include <opencv2/core/utils/logger.hpp>

void KxOpenCvProcess::Prepare()
{
    cv::setNumThreads(1);
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
}

std::string KxOpenCvProcess::Version()
{
    return cv::getVersionString();
}
