# The times of the files, which newer formats keep, would make every build another one.
set(resource_options OPTIONS --format-version 1)

# The translations, compiled and put into dyeworks_platform_qt as the resource ":/translations".

set(translation_sources "${PROJECT_SOURCE_DIR}/translations/dyeworks_ja.ts")
set_source_files_properties(${translation_sources} PROPERTIES
  OUTPUT_LOCATION "${CMAKE_CURRENT_BINARY_DIR}/translations")
qt6_add_lrelease(dyeworks_platform_qt
  TS_FILES ${translation_sources}
  QM_FILES_OUTPUT_VARIABLE translation_files
  OPTIONS -silent)
qt6_add_resources(dyeworks_platform_qt translations
  PREFIX "/translations"
  BASE "${CMAKE_CURRENT_BINARY_DIR}/translations"
  ${resource_options}
  FILES ${translation_files})

# What the desktop is told of the program (data/), as the resource ":/desktop", laid out as below the user's data
# folder. Pictures are compressed as they are.
get_target_property(desktop_share dyeworks_desktop_files DYEWORKS_SHARE)
get_target_property(desktop_files dyeworks_desktop_files DYEWORKS_FILES)
qt6_add_resources(dyeworks_platform_qt desktop
  PREFIX "/desktop"
  BASE "${desktop_share}"
  ${resource_options}
  FILES ${desktop_files})
add_dependencies(dyeworks_platform_qt dyeworks_desktop_files)
