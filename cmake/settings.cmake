# Compiler settings shared by every target of the tree.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# A compiler cache, where one is installed, also shares objects between work trees.
find_program(CCACHE ccache)
if(CCACHE)
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
      ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()

add_library(cim_warnings INTERFACE)
target_compile_options(cim_warnings INTERFACE
  -Wall -Wextra -Werror -Wshadow -Wpointer-arith -Wundef -Wvla
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
  # What g++ 12 says wrongly of the standard containers when it optimises; the sanitizers and
  # clang-tidy look for the same mistakes.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-maybe-uninitialized -Wno-stringop-overread>)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")

# Provider libraries are unloaded and loaded again; a unique symbol would pin them in the process.
add_compile_options($<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>)

if(CIM_UTILS_SANITIZE)
  # Not optimised: most of the time of a check is spent compiling, not running.
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer -O0 -g1)
  add_link_options(-fsanitize=address,undefined)
endif()
if(CIM_UTILS_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -O1)
  add_link_options(-fsanitize=address,undefined)
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(GLIB REQUIRED IMPORTED_TARGET glib-2.0)
