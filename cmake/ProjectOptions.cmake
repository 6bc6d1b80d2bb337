# Settings that hold for every target of the project, and the functions that make targets.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

option(WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(SANITIZER "" CACHE STRING "Sanitizers to build with: empty, address, thread or fuzzer")

# Tests may write plain literals where products say how a text is encoded.
add_library(test_options INTERFACE)
target_compile_options(test_options INTERFACE
  -Wall -Wextra -Wpedantic -Wsuggest-override -Woverloaded-virtual
  $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(test_options INTERFACE
  QT_NO_FOREACH QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

add_library(project_options INTERFACE)
target_link_libraries(project_options INTERFACE test_options)
target_compile_definitions(project_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

if(SANITIZER STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
    -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(SANITIZER STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
elseif(SANITIZER STREQUAL "fuzzer")
  # Libraries as well as programs: a fuzzer follows only code that tells it where it is.
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
    -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
elseif(SANITIZER)
  message(FATAL_ERROR
    "SANITIZER is '${SANITIZER}'; it can be empty, address, thread or fuzzer")
endif()

# Builds the tests that are worth a run under ThreadSanitizer.
add_custom_target(thread_tests)

# What every test runs with.
set(PROJECT_TEST_ENVIRONMENT
  QT_QPA_PLATFORM=offscreen
  LC_ALL=C.UTF-8
  LANGUAGE=
  QT_LOGGING_RULES=*.debug=false
  ASAN_OPTIONS=detect_leaks=1
  LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0
  UBSAN_OPTIONS=print_stacktrace=1
  TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp)

# add_project_test(<name> LABELS <label>... SOURCES <file>... LIBRARIES <target>...
#                  [TIMEOUT <seconds>] [LAUNCHER <script of the project>])
#
# One test executable, run without a display. A label says what it needs: `unit` nothing, `ui`
# widgets, `integration` built programs or plug-ins. Tests with the label `thread` also run under
# ThreadSanitizer.
function(add_project_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT;LAUNCHER" "LABELS;SOURCES;LIBRARIES")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE test_options Qt${QT_MAJOR}::Test ${arg_LIBRARIES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  if("thread" IN_LIST arg_LABELS)
    add_dependencies(thread_tests ${name})
  endif()
  if(arg_LAUNCHER)
    set(arg_LAUNCHER ${PROJECT_SOURCE_DIR}/${arg_LAUNCHER})
  endif()
  add_test(NAME ${name} COMMAND ${arg_LAUNCHER} $<TARGET_FILE:${name}>)
  set_tests_properties(${name} PROPERTIES
    LABELS "${arg_LABELS}"
    TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "${PROJECT_TEST_ENVIRONMENT}")
endfunction()

# add_usb_test(<test> [<function>...]): the same program, or some of its functions, once more with
# cameras on an emulated USB. Sanitizers want to be in front of all other libraries themselves.
function(add_usb_test test)
  if(NOT EMULATED_USB OR SANITIZER)
    return()
  endif()
  add_test(NAME ${test}_usb
    COMMAND ${PROJECT_SOURCE_DIR}/tests/emulatedusb.sh $<TARGET_FILE:${test}> ${ARGN})
  set_tests_properties(${test}_usb PROPERTIES
    LABELS integration
    TIMEOUT 300
    ENVIRONMENT "${PROJECT_TEST_ENVIRONMENT}")
endfunction()
