# libcim_utils: compiled once per preset as objects; the shared library and the tests link them.
file(GLOB library_sources CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/common/*.cc
  ${PROJECT_SOURCE_DIR}/adaptors/*.cc
  ${PROJECT_SOURCE_DIR}/zoning/*.cc
  ${PROJECT_SOURCE_DIR}/model/*.cc
  ${PROJECT_SOURCE_DIR}/cmpi/*.cc
  ${PROJECT_SOURCE_DIR}/pegasus/*.cc)

add_library(cim_utils_objects OBJECT ${library_sources})
target_include_directories(cim_utils_objects
  PUBLIC ${PROJECT_SOURCE_DIR}/include
  PRIVATE ${PROJECT_SOURCE_DIR})
target_compile_options(cim_utils_objects PRIVATE
  -fvisibility=hidden -fvisibility-inlines-hidden
  # The checked variants of the C functions have other names, which platforms do not replace.
  -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=0)
target_link_libraries(cim_utils_objects
  PUBLIC switch_platform_headers cmpi_headers pegasus_interface PkgConfig::GLIB
  PRIVATE cim_warnings)

add_library(cim_utils SHARED)
target_link_libraries(cim_utils
  PRIVATE cim_utils_objects
  PUBLIC switch_platform_headers cmpi_headers pegasus_interface PkgConfig::GLIB)
target_include_directories(cim_utils PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(cim_utils PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
  LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/cim_utils.map)
# Platform functions stay undefined: the process provides them. Calls inside the library bind to
# the library itself, whatever names a hosting process exports.
target_link_options(cim_utils PRIVATE
  -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/cim_utils.map
  -Wl,-Bsymbolic-functions)
