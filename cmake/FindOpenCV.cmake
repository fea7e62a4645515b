# Finds OpenCV's core, imgproc and imgcodecs and defines the target Media::opencv.
#
# OpenCV's own CMake package is taken where there is one. Debian ships that only with the package of everything, so the
# three libraries are looked for by name, too.

include(FindPackageHandleStandardArgs)
set(components opencv_core opencv_imgproc opencv_imgcodecs)

find_package(OpenCV CONFIG QUIET COMPONENTS core imgproc imgcodecs)
if(OpenCV_CONFIG)
    find_package_handle_standard_args(OpenCV CONFIG_MODE)
    set(libraries ${components})
else()
    find_path(OpenCV_INCLUDE_DIRS opencv2/imgcodecs.hpp PATH_SUFFIXES opencv4)
    set(libraries)
    foreach(component IN LISTS components)
        find_library(${component}_LIBRARY ${component})
        list(APPEND libraries ${${component}_LIBRARY})
    endforeach()
    find_package_handle_standard_args(OpenCV
        REQUIRED_VARS opencv_core_LIBRARY opencv_imgproc_LIBRARY opencv_imgcodecs_LIBRARY OpenCV_INCLUDE_DIRS
        REASON_FAILURE_MESSAGE "run scripts/install-deps.sh")
endif()

if(OpenCV_FOUND AND NOT TARGET Media::opencv)
    add_library(Media::opencv INTERFACE IMPORTED)
    target_link_libraries(Media::opencv INTERFACE ${libraries})
    target_include_directories(Media::opencv SYSTEM INTERFACE ${OpenCV_INCLUDE_DIRS})
endif()
