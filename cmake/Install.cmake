# What `cmake --install` puts under the prefix: the executable, the public C
# headers that plug-in authors compile against (in a folder of their own, so
# their short names cannot clash with other packages), the manual page, the
# bash completion and a pkg-config file for the headers.
include(GNUInstallDirs)

install(TARGETS zef_model_validator RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

set(ZEF_INSTALL_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/zef_model_validator)
file(GLOB ZEF_PUBLIC_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)
install(FILES ${ZEF_PUBLIC_HEADERS} DESTINATION ${ZEF_INSTALL_HEADER_DIR})

# Manual page: the release is filled into its title line; installed gzipped
# (reproducibly, without name and time stamp) the way Debian ships pages.
set(ZEF_MAN_PAGE ${PROJECT_BINARY_DIR}/doc/zef_model_validator.1)
configure_file(${PROJECT_SOURCE_DIR}/doc/zef_model_validator.1 ${ZEF_MAN_PAGE} @ONLY)
find_program(ZEF_GZIP gzip)
if(ZEF_GZIP)
  add_custom_command(OUTPUT ${ZEF_MAN_PAGE}.gz
    COMMAND ${ZEF_GZIP} -9 -n -k -f ${ZEF_MAN_PAGE}
    DEPENDS ${ZEF_MAN_PAGE}
    COMMENT "Compressing the manual page"
    VERBATIM)
  add_custom_target(zef_man_page ALL DEPENDS ${ZEF_MAN_PAGE}.gz)
  set(ZEF_INSTALLED_MAN_PAGE ${ZEF_MAN_PAGE}.gz)
else()
  set(ZEF_INSTALLED_MAN_PAGE ${ZEF_MAN_PAGE})
endif()
install(FILES ${ZEF_INSTALLED_MAN_PAGE} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The folder bash-completion loads completions from on demand.
install(FILES ${PROJECT_SOURCE_DIR}/contrib/bash-completion/zef_model_validator
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)

# The pkg-config file finds the prefix from its own place, so one file serves
# `cmake --install --prefix ANY` and the Debian package alike. Only headers
# are described, so it belongs to the architecture-independent folder.
set(ZEF_PKGCONFIG_DIR ${CMAKE_INSTALL_DATADIR}/pkgconfig)
function(zef_pc_path var dir)
  if(IS_ABSOLUTE "${dir}")
    set(${var} "${dir}" PARENT_SCOPE)
  else()
    set(${var} "\${prefix}/${dir}" PARENT_SCOPE)
  endif()
endfunction()
file(RELATIVE_PATH ZEF_PC_PREFIX_FROM_PCFILEDIR /zef-prefix/${ZEF_PKGCONFIG_DIR} /zef-prefix)
string(REGEX REPLACE "/$" "" ZEF_PC_PREFIX_FROM_PCFILEDIR "${ZEF_PC_PREFIX_FROM_PCFILEDIR}")
if(ZEF_PC_PREFIX_FROM_PCFILEDIR STREQUAL "")
  set(ZEF_PC_PREFIX "\${pcfiledir}")
else()
  set(ZEF_PC_PREFIX "\${pcfiledir}/${ZEF_PC_PREFIX_FROM_PCFILEDIR}")
endif()
zef_pc_path(ZEF_PC_INCLUDEDIR ${ZEF_INSTALL_HEADER_DIR})
zef_pc_path(ZEF_PC_BINDIR ${CMAKE_INSTALL_BINDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/zef_model_validator.pc.in
  ${PROJECT_BINARY_DIR}/zef_model_validator.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zef_model_validator.pc DESTINATION ${ZEF_PKGCONFIG_DIR})
