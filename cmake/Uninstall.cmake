# The target "uninstall": removes what "cmake --install" has put there, as its lists in the build folder tell.
#
#   cmake -DBUILD=<folder> -P Uninstall.cmake
#
# The last time counts, of the whole and of each component. Folders that bear our name go with what was in them;
# others belong to the prefix, which had or will have more in them.

file(GLOB lists "${BUILD}/installed-*.txt")
if(NOT lists)
  message(FATAL_ERROR "Nothing was installed from ${BUILD}")
endif()

set(folders)
foreach(list IN LISTS lists)
  file(READ "${list}" files)
  # A ";" in a name would end it.
  string(REPLACE ";" "\\;" files "${files}")
  string(REPLACE "\n" ";" files "${files}")
  foreach(file IN LISTS files)
    if(file STREQUAL "")
      continue()
    endif()
    set(path "${file}")
    if(EXISTS "${path}" OR IS_SYMLINK "${path}")
      message(STATUS "Removing: ${path}")
      file(REMOVE "${path}")
      if(EXISTS "${path}" OR IS_SYMLINK "${path}")
        message(FATAL_ERROR "Could not be removed: ${path}")
      endif()
    endif()
    string(REGEX MATCH "^.*/(orrery-dyeworks|dyeworks-sdk|include/dyeworks|DyeworksSDK)/" ours "${path}")
    if(ours)
      cmake_path(GET path PARENT_PATH folder)
      string(LENGTH "${ours}" shortest)
      string(LENGTH "${folder}/" length)
      while(length GREATER_EQUAL shortest)
        list(APPEND folders "${folder}")
        cmake_path(GET folder PARENT_PATH folder)
        string(LENGTH "${folder}/" length)
      endwhile()
    endif()
  endforeach()
  file(REMOVE "${list}")
endforeach()

# Longer paths first: a folder is empty when those in it are gone.
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
  file(GLOB left LIST_DIRECTORIES true "${folder}/*" "${folder}/.*")
  list(FILTER left EXCLUDE REGEX "/\\.\\.?$")
  if(IS_DIRECTORY "${folder}" AND NOT left)
    file(REMOVE_RECURSE "${folder}")
  endif()
endforeach()
