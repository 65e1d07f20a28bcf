# The modules of OpenCV that are used, as targets opencv_core, opencv_imgproc … Debian's packages of single modules have no
# CMake configuration (it requires all modules), so it is used only if it exists.

set(KR_OPENCV_PARTS core imgproc video calib3d objdetect dnn)
find_package(OpenCV 4.5.4 QUIET COMPONENTS ${KR_OPENCV_PARTS})
if(NOT OpenCV_FOUND)
    find_path(KR_OPENCV_INCLUDE opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
    foreach(part IN LISTS KR_OPENCV_PARTS)
        find_library(KR_OPENCV_${part} opencv_${part} REQUIRED)
        add_library(opencv_${part} UNKNOWN IMPORTED GLOBAL)
        set_target_properties(opencv_${part} PROPERTIES
            IMPORTED_LOCATION "${KR_OPENCV_${part}}"
            INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${KR_OPENCV_INCLUDE}"
            INTERFACE_INCLUDE_DIRECTORIES "${KR_OPENCV_INCLUDE}")
    endforeach()
endif()
