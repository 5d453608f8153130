include("${CMAKE_CURRENT_LIST_DIR}/DyeworksSDKTargets.cmake")

# dyeworks_add_plugin(NAME SOURCE...): the plug-in NAME.so. It exports what the SDK marks as an entry point, and
# nothing else.
function(dyeworks_add_plugin name)
  add_library(${name} MODULE ${ARGN})
  target_link_libraries(${name} PRIVATE Dyeworks::SDK)
  set_target_properties(${name} PROPERTIES
    PREFIX "" SUFFIX ".so"
    C_VISIBILITY_PRESET hidden CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()
