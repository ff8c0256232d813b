# The command that builds the given targets of a sub-build (an ExternalProject whose BINARY_DIR is
# the sub-build's tree) into OUT. Under make the sub-build shares the jobs of the make that runs it.
function(vos_sub_build_command OUT)
  if(CMAKE_GENERATOR MATCHES "Makefiles")
    set(${OUT} $(MAKE) -C <BINARY_DIR> ${ARGN} PARENT_SCOPE)
  else()
    set(${OUT} ${CMAKE_COMMAND} --build <BINARY_DIR> --target ${ARGN} PARENT_SCOPE)
  endif()
endfunction()
