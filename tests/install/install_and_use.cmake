# Builds and installs the library as KIND below WORK_DIR, then builds and runs
# the consumer against nothing but what was installed. The library is compiled
# as in the build that runs the test, and beside it, so that paths are alike and
# ccache serves its objects.
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message("${output}")
    message(FATAL_ERROR "Failed: ${ARGV}")
  endif()
endfunction()

set(prefix ${WORK_DIR}/prefix)
set(common -G ${GENERATOR} -D CMAKE_BUILD_TYPE=${BUILD_TYPE}
  -D CMAKE_CXX_COMPILER=${CXX_COMPILER} -D CMAKE_CXX_FLAGS=${CXX_FLAGS} -D ${OPTIMISATION})
set(BUILD_SHARED_LIBS OFF)
if(KIND STREQUAL "shared")
  set(BUILD_SHARED_LIBS ON)
endif()
file(REMOVE_RECURSE ${prefix} ${WORK_DIR}/consumer)

run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${LIBRARY_DIR} ${common}
  -D QZCORE_WARNINGS_AS_ERRORS=${WARNINGS_AS_ERRORS}
  -D BUILD_SHARED_LIBS=${BUILD_SHARED_LIBS} -D CMAKE_SHARED_LINKER_FLAGS=-Wl,--no-undefined
  -D QZCORE_BUILD_TESTS=OFF -D QZCORE_BUILD_TOOLS=OFF)
run(${CMAKE_COMMAND} --build ${LIBRARY_DIR})
run(${CMAKE_COMMAND} --install ${LIBRARY_DIR} --prefix ${prefix})

file(GLOB_RECURSE pc_file ${prefix}/*/qzcore.pc)
cmake_path(GET pc_file PARENT_PATH pc_dir)
cmake_path(GET pc_dir PARENT_PATH lib_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
set(ENV{LD_LIBRARY_PATH} ${lib_dir})

foreach(way IN ITEMS package pkgconfig)
  set(build ${WORK_DIR}/consumer/${way})
  run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/consumer -B ${build} ${common}
    -D CMAKE_PREFIX_PATH=${prefix} -D FIND_WITH=${way})
  run(${CMAKE_COMMAND} --build ${build})
  run(${build}/consumer)
endforeach()
