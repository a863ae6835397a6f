# Run by CPack on the files that it is about to pack: Debian keeps manual pages compressed.
file(GLOB_RECURSE pages ${CPACK_TEMPORARY_DIRECTORY}/*/usr/share/man/*.[0-9])
foreach(page ${pages})
  execute_process(COMMAND gzip -9n ${page} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
