# Installs the contract from PROJECT_BUILD below WORK and builds each of the projects SOURCES against it.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${PROJECT_BUILD} --prefix ${WORK}/installed
  --component Contract)
foreach(source IN LISTS SOURCES)
  get_filename_component(name ${source} NAME)
  run(${CMAKE_COMMAND} -S ${source} -B ${WORK}/${name} -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${WORK}/installed)
  run(${CMAKE_COMMAND} --build ${WORK}/${name})
endforeach()
