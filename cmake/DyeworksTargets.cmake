# Targets of this project: how a library of a floor, a test and a program are declared.

find_program(DYEWORKS_CCACHE ccache)

# Settings every target of ours is built with; projects that include this one keep their own.
function(dyeworks_target_settings target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  if(DYEWORKS_CCACHE)
    set_target_properties(${target} PROPERTIES
      C_COMPILER_LAUNCHER "${DYEWORKS_CCACHE}" CXX_COMPILER_LAUNCHER "${DYEWORKS_CCACHE}")
  endif()
  if(DYEWORKS_REPRODUCIBLE)
    # Debuggers and coverage want the paths, so other configurations keep them. The later option is asked first.
    foreach(map "${PROJECT_SOURCE_DIR}=." "${PROJECT_BINARY_DIR}=./build")
      target_compile_options(${target} PRIVATE "$<$<CONFIG:Release,MinSizeRel>:-ffile-prefix-map=${map}>")
    endforeach()
  endif()
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(DYEWORKS_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  # A source file's own types are no less its own where several files are compiled as one.
  if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-Wno-subobject-linkage>)
  endif()
  if(DYEWORKS_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=undefined
      -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    # GCC's manual: the sanitizers raise the rate of this warning where nothing is wrong.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
  endif()
  if(DYEWORKS_COVERAGE)
    target_compile_options(${target} PUBLIC --coverage)
    target_link_options(${target} PUBLIC --coverage)
  endif()
endfunction()

# dyeworks_library(<target> FOLDER <folder below src> LINK <libraries>... [QT])
#
# One library for one folder. LINK names what the folder may include; anything else does not link, and
# tools/check-layers refuses it before that. Libraries without QT see no Qt include folder.
function(dyeworks_library target)
  cmake_parse_arguments(arg "QT" "FOLDER" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/src/${arg_FOLDER}/*.cpp" "${PROJECT_SOURCE_DIR}/src/${arg_FOLDER}/*.h")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${target} PUBLIC ${arg_LINK})
  dyeworks_target_settings(${target})
  if(arg_QT)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
  endif()
  add_dependencies(${target} dyeworks_check_layers)
endfunction()

# dyeworks_control(<name>): the companion control <name>.ocx, a library of its own in the program's folder, from
# src/ui/controls/<name in small letters>/. It shares no code with the program and exports its two entry points only.
function(dyeworks_control name)
  string(TOLOWER ${name} folder)
  set(target dyeworks_control_${folder})
  file(GLOB sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/src/ui/controls/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/src/ui/controls/${folder}/*.h")
  set(exports "${PROJECT_SOURCE_DIR}/src/ui/controls/dispatch/exports.map")
  add_library(${target} MODULE ${sources})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${target} PRIVATE Qt6::Widgets)
  target_link_options(${target} PRIVATE "LINKER:--version-script=${exports}")
  dyeworks_target_settings(${target})
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON
    PREFIX ""
    OUTPUT_NAME ${name}
    SUFFIX .ocx
    LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/src"
    LINK_DEPENDS "${exports}")
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
  add_dependencies(${target} dyeworks_check_layers)
endfunction()

# dyeworks_use_controls(<target>): builds the companion controls with <target>, a test; DYEWORKS_CONTROL_FOLDER says
# where they are.
function(dyeworks_use_controls target)
  add_dependencies(${target}
    dyeworks_control_swatchgrid dyeworks_control_rampslider dyeworks_control_folderpick)
  target_compile_definitions(${target} PRIVATE
    DYEWORKS_CONTROL_FOLDER="$<TARGET_FILE_DIR:dyeworks_control_swatchgrid>")
endfunction()

# dyeworks_test(<name> LINK <libraries>...): tests/<name>/*.cpp as one program, each case a test of its own.
function(dyeworks_test name)
  cmake_parse_arguments(arg "QT" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS
    "${PROJECT_SOURCE_DIR}/tests/${name}/*.cpp" "${PROJECT_SOURCE_DIR}/tests/${name}/*.h")
  set(target dyeworks_test_${name})
  add_executable(${target} ${sources})
  target_link_libraries(${target} PRIVATE ${arg_LINK} GTest::gmock)
  if(arg_QT)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
  else()
    target_link_libraries(${target} PRIVATE GTest::gmock_main)
  endif()
  dyeworks_target_settings(${target})
  # The few files that a unity build makes of all would wait for a precompiled header longer than they read it.
  if(CMAKE_UNITY_BUILD)
    set_target_properties(${target} PROPERTIES
      UNITY_BUILD_CODE_BEFORE_INCLUDE "#include <gmock/gmock.h>\n#include <gtest/gtest.h>")
  else()
    target_precompile_headers(${target} PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
  endif()
  if(DYEWORKS_SANITIZE)
    # What is tested is optimized; of the tests themselves that would take longer than they run.
    target_compile_options(${target} PRIVATE -O0)
  endif()
  target_compile_definitions(${target} PRIVATE DYEWORKS_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(${target} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
