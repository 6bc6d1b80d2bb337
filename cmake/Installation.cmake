# Where `cmake --install` puts things, below any prefix, and how programs find them there: by paths that
# begin at the program itself.

set(INSTALL_PLUGINS ${CMAKE_INSTALL_LIBDIR}/nuvexviewer/plugins)
# Programs that only other programs start.
set(INSTALL_WORKERS ${CMAKE_INSTALL_LIBEXECDIR}/nuvexviewer)
set(INSTALL_DATA ${CMAKE_INSTALL_DATADIR}/nuvexviewer)
set(INSTALL_SAMPLES ${INSTALL_DATA}/samples)
set(INSTALL_MANUAL ${CMAKE_INSTALL_DATADIR}/doc/nuvexviewer/html)

# The way from the installed folder `from` to the installed folder `to`.
function(find_installed_way from to result)
  foreach(folder IN ITEMS from to)
    cmake_path(ABSOLUTE_PATH ${folder} BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE)
  endforeach()
  file(RELATIVE_PATH way ${from} ${to})
  set(${result} ${way} PARENT_SCOPE)
endfunction()

# Installs the program or plug-in into `folder`. It finds the library of the contract by its own place.
function(install_binary target folder)
  find_installed_way(${folder} ${CMAKE_INSTALL_LIBDIR} way)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${way}")
  install(TARGETS ${target} RUNTIME DESTINATION ${folder} LIBRARY DESTINATION ${folder})
endfunction()
