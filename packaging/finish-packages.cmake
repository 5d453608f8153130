# Run by cpack when the packages are made: takes from the outermost archive what the umask of whoever packs and the
# hour have left in it. What is inside has its modes and times from complete-packages.cmake.

foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(parts debian-binary control.tar.gz data.tar.xz)
  set(folder "${package}.parts")
  file(MAKE_DIRECTORY "${folder}")
  execute_process(COMMAND ar x "${package}" WORKING_DIRECTORY "${folder}" COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${package}")
  execute_process(COMMAND ar qcDS "${package}" ${parts} WORKING_DIRECTORY "${folder}" COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${folder}")
endforeach()
