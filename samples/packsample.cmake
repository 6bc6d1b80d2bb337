# Makes the images of one sample update from their descriptions and packs the update file.
#
# cmake -D SOURCE=<folder> -D IMAGES=<name>,... -D WORK=<folder> -D GUFTOOL=<program> -D FILE=<file>
#       -P packsample.cmake
#
# An image is its description, which the simulated cameras read as the image's header, an empty line,
# and letters up to the size that the description gives. The seed makes the letters differ from image
# to image but not from build to build.

cmake_minimum_required(VERSION 3.25)

function(read_number text name result)
  if(NOT text MATCHES "(^|\n)${name}: ([0-9]+)\n")
    message(FATAL_ERROR "The description of an image in ${SOURCE} has no line \"${name}: <number>\".")
  endif()
  set(${result} ${CMAKE_MATCH_2} PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(COPY ${SOURCE}/update.json DESTINATION ${WORK})

string(REPLACE "," ";" images "${IMAGES}")
foreach(image IN LISTS images)
  file(READ ${SOURCE}/${image}.txt description)
  read_number("${description}" size size)
  read_number("${description}" seed seed)
  string(LENGTH "${description}\n" header_size)
  math(EXPR letters_size "${size} - ${header_size}")
  string(RANDOM LENGTH ${letters_size} RANDOM_SEED ${seed} letters)
  file(WRITE ${WORK}/${image} "${description}\n${letters}")
endforeach()

get_filename_component(folder ${FILE} DIRECTORY)
file(MAKE_DIRECTORY ${folder})
execute_process(COMMAND ${GUFTOOL} pack ${WORK} ${FILE} RESULT_VARIABLE result ERROR_VARIABLE error
  OUTPUT_QUIET)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${error}")
endif()
