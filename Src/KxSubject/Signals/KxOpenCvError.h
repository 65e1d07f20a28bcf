#pragma once

#include <opencv2/core.hpp>

#include <new>

/// For handlers that treat an error of OpenCV as a picture or model that it cannot process. Lack of memory is excluded.
inline void KxThrowIfOutOfMemory(const cv::Exception& problem)
{
    if (problem.code == cv::Error::StsNoMem) {
        throw std::bad_alloc();
    }
}
