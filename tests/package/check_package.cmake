# Installs the build tree into a fresh prefix, then configures, builds and runs the two consumer
# projects against it. Each program must write a workbook: a non-empty zip file.
#   cmake -D BUILD_DIR=... -D CONFIG=... -D WORK_DIR=... -D LIBDIR=... -D CXX_COMPILER=... -D CXX_FLAGS=...
#         -D LINKER_FLAGS=... -P check_package.cmake

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --config "${CONFIG}" --prefix ${prefix})
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)

foreach(consumer find_package_consumer pkg_config_consumer)
  set(build ${WORK_DIR}/${consumer})
  # Built as another project would be, in Release, with the compiler and flags of this build (a
  # sanitizer build's library needs its runtime in the program too).
  run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/${consumer} -B ${build}
      -D CMAKE_BUILD_TYPE=Release -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
      -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D CMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS})
  run(${CMAKE_COMMAND} --build ${build} --parallel 2)
  foreach(program report_consumer report_consumer_static)
    set(workbook ${WORK_DIR}/${consumer}.${program}.xlsx)
    run(${build}/${program} ${workbook})
    file(READ ${workbook} signature LIMIT 2 HEX)
    if(NOT signature STREQUAL "504b")  # "PK", the start of every zip file
      message(FATAL_ERROR "${consumer}/${program} wrote no zip file at ${workbook}")
    endif()
    message(STATUS "${consumer}/${program}: ${workbook}")
  endforeach()
endforeach()
