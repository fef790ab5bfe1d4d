# What `cmake --install` lays down: the library, its headers, the qznote
# command, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/QZCore)

install(TARGETS QZCore EXPORT QZCoreTargets FILE_SET HEADERS)
install(EXPORT QZCoreTargets NAMESPACE QZCore:: DESTINATION ${package_dir})
configure_package_config_file(cmake/QZCoreConfig.cmake.in QZCoreConfig.cmake
  INSTALL_DESTINATION ${package_dir} NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(QZCoreConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QZCoreConfig.cmake ${PROJECT_BINARY_DIR}/QZCoreConfigVersion.cmake
  DESTINATION ${package_dir})

# Callers of the shared library never see the libraries below it; callers of
# the static one have to link them.
set(QZCORE_PC_REQUIRES "Requires.private")
set(QZCORE_PC_LIBS "")
if(NOT BUILD_SHARED_LIBS)
  set(QZCORE_PC_REQUIRES "Requires")
  set(QZCORE_PC_LIBS "-lbz2")  # which has no pkg-config file
endif()
list(JOIN QZCORE_MODULES " " QZCORE_PC_MODULES)
cmake_path(APPEND CMAKE_INSTALL_PREFIX ${CMAKE_INSTALL_LIBDIR} pkgconfig OUTPUT_VARIABLE pc_dir)
file(RELATIVE_PATH QZCORE_PC_PREFIX ${pc_dir} ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" QZCORE_PC_PREFIX ${QZCORE_PC_PREFIX})
configure_file(cmake/qzcore.pc.in qzcore.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/qzcore.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(TARGET qznote)
  file(RELATIVE_PATH from_tool ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(qznote PROPERTIES INSTALL_RPATH "$ORIGIN/${from_tool}")
  install(TARGETS qznote)
endif()
