#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxCropGeometry.h>
#include <KxSubject/KxSignalProfile.h>

#include <opencv2/core/mat.hpp>

/// The profile of a map along an axis. `map` is CV_32FC1 and covers `region`, a part of a picture of `picturePx`; what
/// exceeds the map's mean counts. `emptyFloor`: the mass, as a share of the area, at which a map gives half of the
/// evidence that it can.
KXSUBJECT_API KxSignalProfile KxProfileOfMap(const cv::Mat& map, const cv::Rect& region, cv::Size picturePx,
                                             KxAxis axis, double emptyFloor);
