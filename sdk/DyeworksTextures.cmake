# Textures of a project file as part of a build.

cmake_policy(PUSH)
# What a plug-in needs, too: the package is one. Both generators know depfiles from there on.
cmake_policy(VERSION 3.20)

# dyeworks_textures(TARGET <target> PROJECT <file.tpf> [FORMAT c|h|raw|png|bmp|tmf] [OUTPUT_DIR <folder>]
#                   [ALIGN <bytes>] [WHOLE_PALETTE] [DRIVES <letter=folder>...])
#
# Has "dyeworks-cli build" write every picture of the project when the target is built, as C source (c) where no format
# is told, and again those that have changed. C source is compiled into the target; the folder of the files, of its own
# below the current binary folder where none is told, is on the include path of the target and of what is linked to it.
# The folder is given over to these files: what is left of pictures that are gone is removed.
#
# The target must be one of the current folder. The pictures are listed when the build is configured, which is done anew
# when the project changes. DYEWORKS_CLI names the program.
function(dyeworks_textures)
  cmake_parse_arguments(PARSE_ARGV 0 arg "WHOLE_PALETTE" "TARGET;PROJECT;FORMAT;OUTPUT_DIR;ALIGN" "DRIVES")
  foreach(needed TARGET PROJECT)
    if(NOT arg_${needed})
      message(FATAL_ERROR "dyeworks_textures: ${needed} is missing")
    endif()
  endforeach()
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "dyeworks_textures: unknown argument: ${arg_UNPARSED_ARGUMENTS}")
  endif()
  # Beside this package, or wherever programs are.
  find_program(DYEWORKS_CLI dyeworks-cli HINTS "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../../../bin" REQUIRED)

  if(NOT arg_FORMAT)
    set(arg_FORMAT c)
  endif()
  if(NOT arg_OUTPUT_DIR)
    set(arg_OUTPUT_DIR "${arg_TARGET}-textures")
  endif()
  cmake_path(ABSOLUTE_PATH arg_PROJECT BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
  cmake_path(ABSOLUTE_PATH arg_OUTPUT_DIR BASE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}" NORMALIZE)
  set(command "${DYEWORKS_CLI}" build --quiet --format "${arg_FORMAT}" --output "${arg_OUTPUT_DIR}")
  if(arg_ALIGN)
    list(APPEND command --align "${arg_ALIGN}")
  endif()
  if(arg_WHOLE_PALETTE)
    list(APPEND command --whole-palette)
  endif()
  foreach(drive IN LISTS arg_DRIVES)
    list(APPEND command --drive "${drive}")
  endforeach()

  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${arg_PROJECT}")
  execute_process(COMMAND ${command} --dry-run --all "${arg_PROJECT}"
    OUTPUT_VARIABLE files OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "dyeworks_textures: not all pictures of ${arg_PROJECT} can be made")
  endif()
  if(files MATCHES ";")
    message(FATAL_ERROR "dyeworks_textures: pictures of ${arg_PROJECT} have names with \";\", which no list of CMake holds")
  endif()
  string(REPLACE "\n" ";" files "${files}")

  # Other options give other files: make does not look at commands.
  set(options "${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}-textures.options")
  file(CONFIGURE OUTPUT "${options}" CONTENT "@command@\n" @ONLY)
  # The index is what is compared with the images, and it alone is newer after every run: files that stay as they are
  # keep their times, and whatever is made of them does so, too.
  set(index "${arg_OUTPUT_DIR}/index.json")
  set(depfile "${CMAKE_CURRENT_BINARY_DIR}/${arg_TARGET}-textures.d")
  add_custom_command(OUTPUT "${index}"
    BYPRODUCTS ${files}
    COMMAND ${command} --depfile "${depfile}" "${arg_PROJECT}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${index}"
    DEPENDS "${arg_PROJECT}" "${DYEWORKS_CLI}" "${options}"
    DEPFILE "${depfile}"
    COMMENT "Writing the textures of ${arg_TARGET}"
    VERBATIM)
  set_source_files_properties(${files} PROPERTIES GENERATED TRUE)
  target_sources(${arg_TARGET} PRIVATE "${index}" ${files})
  target_include_directories(${arg_TARGET} PUBLIC "$<BUILD_INTERFACE:${arg_OUTPUT_DIR}>")
endfunction()

cmake_policy(POP)
