# What `cmake --install` puts below a prefix, and the guide in the build tree.
#
#   lib/orrery-dyeworks/bin/    the program and its companion controls, which it looks for beside itself
#   lib/orrery-dyeworks/doc/    the guide, which the program opens as ../doc/index.html
#   bin/Dyeworks                a link to the program
#   bin/dyeworks-cli            its sister for scripts
#   bin/dyeworks-thumbnailer    its sister for file managers
#   share/                      what the desktop reads (data/README.md), samples, manual pages, completion
#
# Components: editor, cli, sdk. Everything finds its parts from where it is itself, so a tree that was installed may be
# moved; only the entries for the desktop name the prefix.

file(GLOB_RECURSE guide_pages CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/guide/*")
set(guide_pictures "${PROJECT_SOURCE_DIR}/docs/window.png" "${PROJECT_SOURCE_DIR}/data/icons/orrery-dyeworks.svg")
find_package(Python3 REQUIRED COMPONENTS Interpreter)
# The page of commands and keys is made of the program's own tables.
set(guide_commands "${PROJECT_SOURCE_DIR}/tools/guide-commands")
set(guide_tables src/framework/CommandTable.cpp src/ui/MainMenus.cpp src/ui/palettebar/PaletteBarMenu.h
  translations/dyeworks_ja.ts)
list(TRANSFORM guide_tables PREPEND "${PROJECT_SOURCE_DIR}/")
set(guide_stamp "${CMAKE_CURRENT_BINARY_DIR}/guide.stamp")
add_custom_command(OUTPUT "${guide_stamp}"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${PROJECT_BINARY_DIR}/doc"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${PROJECT_SOURCE_DIR}/docs/guide" "${PROJECT_BINARY_DIR}/doc"
  COMMAND "${CMAKE_COMMAND}" -E copy ${guide_pictures} "${PROJECT_BINARY_DIR}/doc"
  COMMAND Python3::Interpreter "${guide_commands}" "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/doc"
  COMMAND "${CMAKE_COMMAND}" -E touch "${guide_stamp}"
  DEPENDS ${guide_pages} ${guide_pictures} "${guide_commands}" ${guide_tables}
  COMMENT "Copying the guide"
  VERBATIM)
add_custom_target(dyeworks_guide DEPENDS "${guide_stamp}")
add_dependencies(Dyeworks dyeworks_guide)

if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

set(home lib/orrery-dyeworks)
install(TARGETS Dyeworks dyeworks_control_swatchgrid dyeworks_control_rampslider dyeworks_control_folderpick
  RUNTIME DESTINATION ${home}/bin COMPONENT editor
  LIBRARY DESTINATION ${home}/bin COMPONENT editor)
install(DIRECTORY "${PROJECT_BINARY_DIR}/doc" DESTINATION ${home} COMPONENT editor)
install(DIRECTORY samples/ DESTINATION share/orrery-dyeworks/samples COMPONENT editor)

get_target_property(share dyeworks_desktop_files DYEWORKS_SHARE)
install(DIRECTORY "${share}/icons" "${share}/mime" DESTINATION share COMPONENT editor)
install(FILES data/orrery-dyeworks.metainfo.xml
  DESTINATION share/metainfo RENAME local.orrery.dyeworks.metainfo.xml COMPONENT editor)

# dyeworks_command_files(<program> <component> [FROM_HELP | MANUAL_ONLY]): its manual pages in both languages and its
# completion for two shells. FROM_HELP: a program of commands, which tells the build itself what they are.
# MANUAL_ONLY: one that nobody types.
function(dyeworks_command_files program component)
  cmake_parse_arguments(PARSE_ARGV 2 arg "FROM_HELP;MANUAL_ONLY" "" "")
  set(made "${PROJECT_BINARY_DIR}/command-files/${program}")
  # Languages of manual pages are told by their folder below one of this name.
  set(pages "${made}/man")
  set(templates "${pages}")
  set(completions "${PROJECT_SOURCE_DIR}/data/completions")
  if(arg_FROM_HELP)
    set(templates "${made}/templates")
    set(completions "${made}")
  endif()
  set(COMMANDS "@COMMANDS@")
  foreach(language . ja)
    configure_file("docs/man/${language}/${program}.1.in" "${templates}/${language}/man1/${program}.1" @ONLY)
    install(FILES "${pages}/${language}/man1/${program}.1"
      DESTINATION share/man/${language}/man1 COMPONENT ${component})
  endforeach()
  if(arg_MANUAL_ONLY)
    return()
  endif()
  install(FILES "${completions}/${program}.bash"
    DESTINATION share/bash-completion/completions RENAME ${program} COMPONENT ${component})
  install(FILES "${completions}/_${program}" DESTINATION share/zsh/site-functions COMPONENT ${component})
  if(NOT arg_FROM_HELP)
    return()
  endif()

  set(files "${pages}/man1/${program}.1" "${pages}/ja/man1/${program}.1"
    "${made}/${program}.bash" "${made}/_${program}")
  set(maker "${PROJECT_SOURCE_DIR}/tools/make-command-files")
  add_custom_command(OUTPUT ${files}
    COMMAND Python3::Interpreter "${maker}" "$<TARGET_FILE:${program}>" "${templates}" "${made}"
    DEPENDS ${program} "${maker}" "${templates}/man1/${program}.1" "${templates}/ja/man1/${program}.1"
    COMMENT "Writing the manual of ${program}"
    VERBATIM)
  add_custom_target(dyeworks_command_files_${program} ALL DEPENDS ${files})
endfunction()
dyeworks_command_files(Dyeworks editor)

# With the editor: whoever has the files on a desktop has the program, and the command line's package need not be there.
install(TARGETS dyeworks-thumbnailer RUNTIME DESTINATION bin COMPONENT editor)
dyeworks_command_files(dyeworks-thumbnailer editor MANUAL_ONLY)

install(TARGETS dyeworks-cli RUNTIME DESTINATION bin COMPONENT cli)
dyeworks_command_files(dyeworks-cli cli FROM_HELP)

# The prefix is known when installing only. In an entry it is a quoted argument, where "%" starts a field code and
# some characters take a backslash that is written twice.
install(CODE "set(entry \"${share}/applications/orrery-dyeworks.desktop\")
set(thumbnailer \"${PROJECT_SOURCE_DIR}/data/orrery-dyeworks.thumbnailer.in\")
set(version ${PROJECT_VERSION})"
  COMPONENT editor)
install(CODE [[
  set(root "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  file(MAKE_DIRECTORY "${root}/bin")
  file(CREATE_LINK ../lib/orrery-dyeworks/bin/Dyeworks "${root}/bin/Dyeworks" SYMBOLIC)

  function(quoted_in_entry variable path)
    string(REPLACE "%" "%%" path "${path}")
    string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" path "${path}")
    set(${variable} "\"${path}\"" PARENT_SCOPE)
  endfunction()
  quoted_in_entry(EXEC "${CMAKE_INSTALL_PREFIX}/bin/Dyeworks")
  set(THUMBNAILER "${CMAKE_INSTALL_PREFIX}/bin/dyeworks-thumbnailer")
  quoted_in_entry(THUMBNAILER_EXEC "${THUMBNAILER}")
  set(VERSION "${version}")
  set(MIME_TYPES "image/x-orrery-tmf;text/x-orrery-tpf;application/x-orrery-tlf;")
  message(STATUS "Installing: ${root}/share/applications/orrery-dyeworks.desktop")
  configure_file("${entry}" "${root}/share/applications/orrery-dyeworks.desktop" @ONLY)
  message(STATUS "Installing: ${root}/share/thumbnailers/orrery-dyeworks.thumbnailer")
  configure_file("${thumbnailer}" "${root}/share/thumbnailers/orrery-dyeworks.thumbnailer" @ONLY)

  # In the list of what was installed, from which all of it can be removed.
  list(APPEND CMAKE_INSTALL_MANIFEST_FILES
    "${CMAKE_INSTALL_PREFIX}/bin/Dyeworks" "${CMAKE_INSTALL_PREFIX}/share/applications/orrery-dyeworks.desktop"
    "${CMAKE_INSTALL_PREFIX}/share/thumbnailers/orrery-dyeworks.thumbnailer")
]] COMPONENT editor)

# With DESTDIR, and not what cpack installs for its packages: CMake's own lists would have "uninstall" remove files of
# the system that it has never put there.
install(CODE "set(build \"${PROJECT_BINARY_DIR}\")" ALL_COMPONENTS)
install(CODE [[
  if(NOT "$ENV{DESTDIR}" MATCHES "/_CPack_Packages/")
    list(TRANSFORM CMAKE_INSTALL_MANIFEST_FILES PREPEND "$ENV{DESTDIR}" OUTPUT_VARIABLE installed)
    list(JOIN installed "\n" installed)
    file(WRITE "${build}/installed-${CMAKE_INSTALL_COMPONENT}.txt" "${installed}\n")
  endif()
]] ALL_COMPONENTS)
add_custom_target(uninstall
  COMMAND "${CMAKE_COMMAND}" "-DBUILD=${PROJECT_BINARY_DIR}" -P "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake"
  VERBATIM)
include(Packages)
