# OpenCV's modules core and imgproc, as the imported target OpenCVImgproc. Debian's packages of the
# single modules have neither a CMake package nor a file for pkg-config; both come with all of OpenCV
# only, which is two hundred packages.

find_path(OpenCVImgproc_INCLUDE_DIR opencv2/imgproc.hpp PATH_SUFFIXES opencv4)
# What a build of OpenCV has chosen depends on the machine.
find_path(OpenCVImgproc_CONFIG_DIR opencv2/cvconfig.h
  PATH_SUFFIXES ${CMAKE_LIBRARY_ARCHITECTURE}/opencv4 opencv4)
find_library(OpenCVImgproc_LIBRARY opencv_imgproc)
find_library(OpenCVImgproc_CORE_LIBRARY opencv_core)
mark_as_advanced(OpenCVImgproc_INCLUDE_DIR OpenCVImgproc_CONFIG_DIR OpenCVImgproc_LIBRARY
  OpenCVImgproc_CORE_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVImgproc REQUIRED_VARS OpenCVImgproc_LIBRARY
  OpenCVImgproc_CORE_LIBRARY OpenCVImgproc_INCLUDE_DIR OpenCVImgproc_CONFIG_DIR)

if(OpenCVImgproc_FOUND AND NOT TARGET OpenCVImgproc)
  add_library(OpenCVImgproc INTERFACE IMPORTED)
  target_include_directories(OpenCVImgproc INTERFACE ${OpenCVImgproc_INCLUDE_DIR}
    ${OpenCVImgproc_CONFIG_DIR})
  target_link_libraries(OpenCVImgproc INTERFACE ${OpenCVImgproc_LIBRARY}
    ${OpenCVImgproc_CORE_LIBRARY})
endif()
