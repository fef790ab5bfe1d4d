# The one library target and its back ends.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
find_package(OpenSSL 3.0 REQUIRED COMPONENTS Crypto)
find_package(BZip2 REQUIRED)

set(QZCORE_MODULES icu-i18n icu-uc expat 2geom)
set(QZCORE_BACK_ENDS "")
file(GLOB_RECURSE QZCORE_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.cpp)

# The sources src/platform/<prefix>_*.cpp belong to the library only with
# `option`, and then need the pkg-config modules that follow.
macro(qzcore_back_end option prefix)
  if(${option})
    list(APPEND QZCORE_MODULES ${ARGN})
    list(APPEND QZCORE_BACK_ENDS ${option}=1)
  else()
    list(FILTER QZCORE_SOURCES EXCLUDE REGEX "/src/platform/${prefix}_[^/]*\\.cpp$")
  endif()
endmacro()
qzcore_back_end(QZCORE_WITH_PANGO pango pangoft2 fontconfig)
qzcore_back_end(QZCORE_WITH_CURL curl libcurl)
qzcore_back_end(QZCORE_WITH_GDK_PIXBUF gdk_pixbuf gdk-pixbuf-2.0)
pkg_check_modules(QZCORE_PLATFORM REQUIRED IMPORTED_TARGET ${QZCORE_MODULES})

include(PublicHeaders)

add_library(QZCore ${QZCORE_SOURCES})
add_library(QZCore::QZCore ALIAS QZCore)
target_sources(QZCore PUBLIC FILE_SET HEADERS
  BASE_DIRS ${PROJECT_SOURCE_DIR}/include FILES ${QZCORE_PUBLIC_HEADERS})
target_include_directories(QZCore PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_compile_features(QZCore PUBLIC cxx_std_20)
# Some back ends ask for this option; with it, objects are the same without them.
target_compile_options(QZCore PRIVATE -pthread)
target_compile_definitions(QZCore PRIVATE ${QZCORE_BACK_ENDS} QZCORE_VERSION="${PROJECT_VERSION}")
target_link_libraries(QZCore PRIVATE
  PkgConfig::QZCORE_PLATFORM OpenSSL::Crypto BZip2::BZip2 Threads::Threads
  $<BUILD_INTERFACE:qzcore_build_rules> $<BUILD_INTERFACE:qzcore_warnings>)
# Before 1.0 every minor version may break callers, so it is part of the SONAME.
set_target_properties(QZCore PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
  DEFINE_SYMBOL ""
  VERIFY_INTERFACE_HEADER_SETS ON)
