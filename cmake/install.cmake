# What a program or provider outside this tree is built with: libraries, headers, pkg-config files.
# Our own provider interfaces go below cim_utils/compat, never where installed ones would be.
install(TARGETS cim_utils LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/cim_utils DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY interfaces/platform/switch_platform DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        FILES_MATCHING PATTERN "*.h")

set(compat ${CMAKE_INSTALL_INCLUDEDIR}/cim_utils/compat)
set(cim_utils_cflags "-I\${includedir}")
set(cim_utils_libs "-L\${libdir} -lcim_utils")
if(CMPI_INCLUDE_DIR)
  string(APPEND cim_utils_cflags " -I${CMPI_INCLUDE_DIR} -DCMPI_PLATFORM_LINUX_GENERIC_GNU")
else()
  install(DIRECTORY interfaces/cmpi/ DESTINATION ${compat}/cmpi FILES_MATCHING PATTERN "*.h")
  string(APPEND cim_utils_cflags " -I\${includedir}/cim_utils/compat/cmpi")
endif()
if(PEGASUS_ROOT)
  string(APPEND cim_utils_cflags " -I${PEGASUS_ROOT}/src -DPEGASUS_PLATFORM_LINUX_X86_64_GNU")
else()
  install(TARGETS cim_utils_pegasus LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY interfaces/pegasus/Pegasus DESTINATION ${compat} FILES_MATCHING PATTERN "*.h")
  string(APPEND cim_utils_cflags " -I\${includedir}/cim_utils/compat")
  string(APPEND cim_utils_libs " -lcim_utils_pegasus")
endif()
# The files find their prefix from where they are, so that a tree may be moved.
file(RELATIVE_PATH pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/cim_utils.pc.in cim_utils.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/cim_utils.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# cim_utils.pc requires a switch-platform.pc: the simulator's, unless another platform brings its own.
if(NOT SWITCH_PLATFORM)
  install(TARGETS switch_sim LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  configure_file(cmake/switch-platform.pc.in switch-platform.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/switch-platform.pc
          DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
