# The three interfaces that the library meets: the switch platform, CMPI and OpenPegasus.
# Each is an INTERFACE target, so that the rest of the tree does not know whose headers it uses.

add_library(switch_platform_headers INTERFACE)
target_include_directories(switch_platform_headers INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/interfaces/platform>)

# The embedded object manager is always built with our own headers: it implements every table slot by
# slot, and what it shares with a provider is the binary interface.
add_library(own_cmpi_headers INTERFACE)
target_include_directories(own_cmpi_headers INTERFACE ${PROJECT_SOURCE_DIR}/interfaces/cmpi)

add_library(cmpi_headers INTERFACE)
if(CMPI_INCLUDE_DIR)
  if(NOT EXISTS ${CMPI_INCLUDE_DIR}/cmpidt.h)
    message(FATAL_ERROR "CMPI_INCLUDE_DIR=${CMPI_INCLUDE_DIR} holds no cmpidt.h")
  endif()
  target_include_directories(cmpi_headers SYSTEM INTERFACE ${CMPI_INCLUDE_DIR})
  target_compile_definitions(cmpi_headers INTERFACE CMPI_PLATFORM_LINUX_GENERIC_GNU)
else()
  target_include_directories(cmpi_headers INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/interfaces/cmpi>)
endif()
