# The one library target, its back ends, and how it is installed.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
pkg_check_modules(ICU REQUIRED IMPORTED_TARGET icu-i18n icu-uc)
pkg_check_modules(EXPAT REQUIRED IMPORTED_TARGET expat)

file(GLOB_RECURSE QZCORE_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.cpp)
list(FILTER QZCORE_SOURCES EXCLUDE REGEX "/src/platform/(pango|curl|gdk_pixbuf)_[^/]*\\.cpp$")

set(QZCORE_BACK_END_MODULES "")
set(QZCORE_BACK_END_DEFINITIONS "")
function(qzcore_back_end option prefix)
  if(${option})
    pkg_check_modules(${option} REQUIRED IMPORTED_TARGET ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/platform/${prefix}_*.cpp)
    list(APPEND QZCORE_SOURCES ${sources})
    list(APPEND QZCORE_BACK_END_MODULES PkgConfig::${option})
    list(APPEND QZCORE_BACK_END_DEFINITIONS ${option}=1)
    set(QZCORE_SOURCES ${QZCORE_SOURCES} PARENT_SCOPE)
    set(QZCORE_BACK_END_MODULES ${QZCORE_BACK_END_MODULES} PARENT_SCOPE)
    set(QZCORE_BACK_END_DEFINITIONS ${QZCORE_BACK_END_DEFINITIONS} PARENT_SCOPE)
  endif()
endfunction()
qzcore_back_end(QZCORE_WITH_PANGO pango pangoft2 fontconfig)
qzcore_back_end(QZCORE_WITH_CURL curl libcurl)
qzcore_back_end(QZCORE_WITH_GDK_PIXBUF gdk_pixbuf gdk-pixbuf-2.0)

include(PublicHeaders)

add_library(QZCore ${QZCORE_SOURCES})
add_library(QZCore::QZCore ALIAS QZCore)
target_sources(QZCore PUBLIC FILE_SET HEADERS
  BASE_DIRS ${PROJECT_SOURCE_DIR}/include FILES ${QZCORE_PUBLIC_HEADERS})
target_include_directories(QZCore PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_compile_features(QZCore PUBLIC cxx_std_20)
target_compile_definitions(QZCore PRIVATE ${QZCORE_BACK_END_DEFINITIONS}
  QZCORE_VERSION="${PROJECT_VERSION}")
target_link_libraries(QZCore PRIVATE
  PkgConfig::ICU PkgConfig::EXPAT ${QZCORE_BACK_END_MODULES} Threads::Threads
  $<BUILD_INTERFACE:qzcore_build_rules> $<BUILD_INTERFACE:qzcore_warnings>)
set_target_properties(QZCore PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  VERIFY_INTERFACE_HEADER_SETS ON)
