include("${CMAKE_CURRENT_LIST_DIR}/DyeworksSDKTargets.cmake")
