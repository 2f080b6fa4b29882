include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui Widgets)
find_dependency(vkd_platform)
include(${CMAKE_CURRENT_LIST_DIR}/vkd_p_feaTargets.cmake)
