# Debian package of the installed tree (`cpack -G DEB` in the build folder).
# It holds exactly what Install.cmake installs, below /usr.
set(ZEF_PACKAGE_CONTACT "zef_model_validator maintainers <zef-model-validator@localhost>"
  CACHE STRING "Maintainer named in the packages")

set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${ZEF_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "validator for management information models")
set(CPACK_PACKAGE_DESCRIPTION
"zef_model_validator loads the XML files of a management information model,
resolves the references between its elements, checks the model against a
fixed set of consistency rules and hands it to static validator plug-ins.
It prints a short summary, writes the details to a rotating log file and
tells by its exit status whether the model is valid.
.
The package also holds the C headers and pkg-config file for writing
static validator plug-ins.")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_SOURCE_IGNORE_FILES "/\\.git/" "/build[^/]*/")

# Debian package names allow no underscore; the command keeps its name.
set(CPACK_DEBIAN_PACKAGE_NAME zef-model-validator)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "pkg-config")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# dpkg-shlibdeps names the exact runtime packages (the Poco Foundation and XML
# libraries, libstdc++, libc) with their minimum versions. Without it the
# Debian 12 names are written out.
find_program(ZEF_DPKG_SHLIBDEPS dpkg-shlibdeps)
if(ZEF_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libpocofoundation80, libpocoxml80, libstdc++6, libgcc-s1, libc6")
endif()

include(CPack)
