# What an installation consists of, by component: the plug-in (runtime), what a panel application is compiled with (dev),
# the programs (tools) and what a person reads (doc).
include(CMakePackageConfigHelpers)

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/lcdmainconfig)

install(TARGETS lcdmainconfigimpl LIBRARY DESTINATION ${LCD_PLUGIN_DIR} COMPONENT runtime)

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)
install(FILES framework/src/host/kpmhost.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kpmhost COMPONENT dev)
install(TARGETS lcdmainconfig kpmhost EXPORT lcdmainconfig
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
install(EXPORT lcdmainconfig FILE lcdmainconfigTargets.cmake NAMESPACE lcdmainconfig::
  DESTINATION ${config_dir} COMPONENT dev)

set(plugin ${LCD_PLUGIN_DIR}/lcdmainconfigimpl.so)
configure_package_config_file(cmake/lcdmainconfigConfig.cmake.in ${PROJECT_BINARY_DIR}/lcdmainconfigConfig.cmake
  INSTALL_DESTINATION ${config_dir} PATH_VARS plugin NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# A host fits the one version whose headers it was compiled against.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/lcdmainconfigConfigVersion.cmake COMPATIBILITY ExactVersion)
install(FILES ${PROJECT_BINARY_DIR}/lcdmainconfigConfig.cmake ${PROJECT_BINARY_DIR}/lcdmainconfigConfigVersion.cmake
  DESTINATION ${config_dir} COMPONENT dev)

# Told from the place of the file itself, so that the installed tree may be moved.
file(RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
configure_file(cmake/lcdmainconfig.pc.in lcdmainconfig.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/lcdmainconfig.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

if(LCD_TOOLS)
  install(TARGETS lcdhost lcdcheck RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  install(FILES docs/man/lcdhost.1 docs/man/lcdcheck.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  install(FILES docs/man/lcdmainconfig.5 DESTINATION ${CMAKE_INSTALL_MANDIR}/man5 COMPONENT tools)
  install(FILES completions/lcdtools.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME lcdhost COMPONENT tools)
  install(FILES completions/lcdtools.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME lcdcheck COMPONENT tools)
  install(FILES completions/_lcdhost completions/_lcdcheck
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tools)
  install(FILES completions/lcdhost.fish completions/lcdcheck.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
endif()

set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/lcdmainconfig-doc)
install(DIRECTORY docs/ DESTINATION ${doc_dir} COMPONENT doc FILES_MATCHING PATTERN *.md PATTERN man EXCLUDE)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md DESTINATION ${doc_dir} COMPONENT doc)
install(DIRECTORY examples DESTINATION ${doc_dir} COMPONENT doc)
# Made by `./dev docs`; a tree without it is installed without it.
install(DIRECTORY build/docs/api DESTINATION ${doc_dir} COMPONENT doc OPTIONAL)
