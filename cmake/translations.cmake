# The catalogue of the library's messages. Its one context "reading" is given to each class in whose name messages are
# told, since tr() looks them up under the class.
find_program(LRELEASE NAMES lrelease lrelease-qt5)
# The name may be there that chooses between versions of Qt, and no program behind it.
if(LRELEASE)
  execute_process(COMMAND ${LRELEASE} -version RESULT_VARIABLE fails OUTPUT_QUIET ERROR_QUIET)
endif()
if(NOT LRELEASE OR fails)
  message(STATUS "No lrelease: the translations are left out")
  return()
endif()

set(catalogue ${PROJECT_SOURCE_DIR}/translations/lcdmainconfig_zh_CN.ts)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${catalogue})
file(READ ${catalogue} text)
string(REGEX MATCH "<context>.*</context>" context "${text}")
foreach(class DeviceFeatureConfig LayerConfigManager ScreenConfigManager SilkConfigManager SlotConfigManager)
  string(REPLACE "<name>reading<" "<name>LCD::MainConfigImpl::${class}<" own "${context}")
  string(APPEND contexts "${own}\n")
endforeach()
string(REPLACE "${context}" "${contexts}" text "${text}")
file(CONFIGURE OUTPUT lcdmainconfig_zh_CN.ts CONTENT "${text}" @ONLY)

set(qm ${PROJECT_BINARY_DIR}/lcdmainconfig_zh_CN.qm)
add_custom_command(OUTPUT ${qm} DEPENDS ${PROJECT_BINARY_DIR}/lcdmainconfig_zh_CN.ts
  COMMAND ${LRELEASE} -silent ${PROJECT_BINARY_DIR}/lcdmainconfig_zh_CN.ts -qm ${qm})
add_custom_target(translations ALL DEPENDS ${qm})
if(LCD_INSTALL)
  install(FILES ${qm} DESTINATION ${CMAKE_INSTALL_DATADIR}/lcdmainconfig/translations COMPONENT runtime)
endif()
