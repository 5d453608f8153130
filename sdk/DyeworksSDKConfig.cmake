include("${CMAKE_CURRENT_LIST_DIR}/DyeworksSDKTargets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/DyeworksTextures.cmake")

# dyeworks_add_plugin(NAME SOURCE...): the plug-in NAME.so, a target that further libraries can be linked to. It exports
# its entry points and its version information, and nothing else: inline variables of C++ that a library exports would
# keep it in memory when the program unloads it.
function(dyeworks_add_plugin name)
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE Dyeworks::SDK)
  target_link_options(${name} PRIVATE "LINKER:--version-script=${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exports.map")
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX ".so" OUTPUT_NAME ${name}
    C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()
