# The headers of QtCore precompiled, once for the products and once for the tests: half of a build's time goes into
# reading them. Off by default: a file that forgets to include something has to fail somewhere.
#
# Qt's keywords are among them: a target without keywords sets DISABLE_PRECOMPILE_HEADERS.
option(PRECOMPILED_HEADERS "Precompile the headers of QtCore" OFF)
if(NOT PRECOMPILED_HEADERS)
  return()
endif()

# What is precompiled serves libraries and programs alike.
add_compile_options(-fPIC)
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES ccache)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    ${CMAKE_CXX_COMPILER_LAUNCHER})
  add_compile_options(-fpch-preprocess)
endif()

foreach(options project_options test_options)
  file(CONFIGURE OUTPUT ${options}_headers.cpp CONTENT "// Nothing but headers.\n" @ONLY)
  add_library(${options}_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${options}_headers.cpp)
  target_link_libraries(${options}_headers PRIVATE ${options} Qt${QT_MAJOR}::Core)
  target_precompile_headers(${options}_headers PRIVATE <QtCore/QtCore>)
endforeach()

# Gives them to the targets of a folder and of the folders below.
function(use_precompiled_headers folder)
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS folders)
    use_precompiled_headers(${subfolder})
  endforeach()
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    # GLib's headers come without Qt's keywords.
    if("PkgConfig::aravis" IN_LIST libraries)
      continue()
    endif()
    foreach(options project_options test_options)
      if("${options}" IN_LIST libraries AND NOT target MATCHES "_headers$")
        target_precompile_headers(${target} REUSE_FROM ${options}_headers)
        break()
      endif()
    endforeach()
  endforeach()
endfunction()
cmake_language(DEFER DIRECTORY ${PROJECT_SOURCE_DIR}
  CALL use_precompiled_headers ${PROJECT_SOURCE_DIR})
