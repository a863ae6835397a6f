# The Debian packages: plug-in, development files, programs, documents. `./dev package` builds and tries them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lcdmainconfig)
set(CPACK_PACKAGE_CONTACT "The lcdmainconfig maintainers <maintainers@lcdmainconfig.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/compress.cmake)
set(CPACK_COMPONENTS_ALL runtime dev tools doc)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
  WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(exact "(= ${PROJECT_VERSION}-1)")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME lcdmainconfig)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "configuration model of a front panel: plug-in
Reads what a video processor, its cards, its connectors and its front panel
can do from XML capability files, and keeps the settings of the panel.
.
This package holds the plug-in that the panel application loads.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME lcdmainconfig-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "lcdmainconfig ${exact}, qtbase5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEV_DESCRIPTION "configuration model of a front panel: development
Headers of the records and interfaces, a small component host as a static
library, and what CMake and pkg-config need to find them.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME lcdmainconfig-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "lcdmainconfig ${exact}")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "configuration model of a front panel: programs
The program lcdhost shows what a configuration says, lcdcheck tells its
authors where it is wrong, and what that costs.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME lcdmainconfig-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "configuration model of a front panel: documents
What a host does, what the configuration files may hold, a complete example
configuration, and a small panel application.")

# What every package says of itself.
find_program(GZIP gzip REQUIRED)
file(CONFIGURE OUTPUT debian/changelog.Debian CONTENT "lcdmainconfig (${PROJECT_VERSION}-1) unstable; urgency=medium

  * See the CHANGELOG.md of the package lcdmainconfig-doc.

 -- ${CPACK_PACKAGE_CONTACT}  Mon, 23 Nov 2026 00:00:00 +0000
")
execute_process(COMMAND ${GZIP} -9nfk ${PROJECT_BINARY_DIR}/debian/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
foreach(component ${CPACK_COMPONENTS_ALL})
  string(TOUPPER ${component} key)
  install(FILES ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz cmake/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME} COMPONENT ${component})
endforeach()

include(CPack)
