# The dialect and the floating-point rules that every target of the tree keeps.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# The cache may serve one build folder from another: sources are compiled by
# absolute path, so nothing depends on the folder that the compiler runs in.
find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(PROJECT_IS_TOP_LEVEL AND CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_NOHASHDIR=true ${CCACHE_PROGRAM})
endif()

# Results that are fixed to single precision must not change with the target:
# no fused multiply-add, and no basic-block vectorizer in GCC, whose version 12
# drops neighbouring roundings to float. tests/numbers fails without these.
add_library(qzcore_build_rules INTERFACE)
target_compile_options(qzcore_build_rules INTERFACE
  -ffp-contract=off
  $<$<CXX_COMPILER_ID:GNU>:-fno-tree-slp-vectorize>)

option(QZCORE_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)
add_library(qzcore_warnings INTERFACE)
target_compile_options(qzcore_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # GCC 12 finds overlaps and overflows in its own standard library that cannot
  # happen.
  "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-stringop-overflow>"
  $<$<BOOL:${QZCORE_WARNINGS_AS_ERRORS}>:-Werror>)
