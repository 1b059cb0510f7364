# SPDX-License-Identifier: MIT
# What an installed Scopix consists of: the program, its libraries, the default plug-in, the scenes, and
# the SDK (headers and the CMake package Scopix) that another plug-in or an embedding program builds on:
#
#     find_package(Scopix 1.0 REQUIRED COMPONENTS ExtenderAPI)
#     target_link_libraries(mine PRIVATE Scopix::ExtenderAPI)
#
# Each library is a component; cmake/ScopixPublicHeaders.cmake lists what is installed of its headers.
include(CMakePackageConfigHelpers)
include(ScopixHeaders)

set(SCOPIX_INSTALL_PLUGINS "${CMAKE_INSTALL_LIBDIR}/scopix/plugins")
set(SCOPIX_INSTALL_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/Scopix")
set(SCOPIX_COMPONENTS) # in the order of the calls: each one needs none but those before it

# Each library finds the others wherever the whole is put. Its targets are in a file of their own, so that a component
# can be used where what the others need is missing.
macro(scopix_install_library target component)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${component} INSTALL_RPATH "$ORIGIN")
  target_compile_features(${target} INTERFACE cxx_std_17)
  install(TARGETS ${target} EXPORT Scopix${component}Targets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
  install(EXPORT Scopix${component}Targets NAMESPACE Scopix:: DESTINATION "${SCOPIX_INSTALL_PACKAGE}")
  list(APPEND SCOPIX_COMPONENTS ${component})
endmacro()

scopix_install_library(xsg xsg)
scopix_public_headers(xsg xsg "${PROJECT_SOURCE_DIR}/xsg" ${SCOPIX_XSG_HEADERS})

scopix_install_library(ScopixLive Live)
scopix_public_headers(ScopixLive scopix/live "${PROJECT_SOURCE_DIR}/live" ${SCOPIX_LIVE_HEADERS})
if(TARGET ScopixLiveOsg)
  scopix_install_library(ScopixLiveOsg LiveOsg)
  scopix_public_headers(ScopixLiveOsg scopix/live/osg "${PROJECT_SOURCE_DIR}/live/osg" LiveOsg.h)
  install(TARGETS ScopixLiveOsgPreload LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endif()

scopix_install_library(ScopixLiveXsg LiveXsg)
scopix_public_headers(ScopixLiveXsg scopix/live/xsg "${PROJECT_SOURCE_DIR}/live/xsg" ${SCOPIX_LIVE_XSG_HEADERS})

scopix_install_library(ScopixExtenderAPI ExtenderAPI)
scopix_public_headers(ScopixExtenderAPI scopix "${PROJECT_SOURCE_DIR}/extender" ${SCOPIX_EXTENDER_HEADERS})

scopix_install_library(ScopixEditing Editing)
scopix_public_headers(ScopixEditing scopix/editing "${PROJECT_SOURCE_DIR}/editing" ${SCOPIX_EDITING_HEADERS})

scopix_install_library(ScopixHost Host)
scopix_public_headers(ScopixHost scopix-host "${PROJECT_SOURCE_DIR}/host/app" ${SCOPIX_HOST_HEADERS})

set_target_properties(scopix PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
install(TARGETS scopix RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
set_target_properties(scopix-read-model scopix-try-plugin PROPERTIES INSTALL_RPATH "$ORIGIN/..")
install(TARGETS scopix-read-model scopix-try-plugin RUNTIME DESTINATION "${CMAKE_INSTALL_LIBDIR}/scopix")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/data/" DESTINATION "${CMAKE_INSTALL_DATADIR}/scopix")

install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/" DESTINATION "${CMAKE_INSTALL_DATADIR}/scopix/docs")
# Beside the libraries of the build as beside those that are installed.
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/share/scopix")
file(CREATE_LINK "${PROJECT_SOURCE_DIR}/docs" "${PROJECT_BINARY_DIR}/share/scopix/docs" SYMBOLIC)
foreach(folder IN ITEMS models pictures scenes)
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/data/${folder}" "${PROJECT_BINARY_DIR}/share/scopix/${folder}" SYMBOLIC)
endforeach()

set_target_properties(SpxDefaults SpxInspector SpxProfiler PROPERTIES INSTALL_RPATH "$ORIGIN/../..")
install(TARGETS SpxDefaults SpxInspector SpxProfiler LIBRARY DESTINATION "${SCOPIX_INSTALL_PLUGINS}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ScopixConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/cmake/ScopixConfig.cmake"
  INSTALL_DESTINATION "${SCOPIX_INSTALL_PACKAGE}" PATH_VARS SCOPIX_INSTALL_PLUGINS)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/cmake/ScopixConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/cmake/ScopixConfig.cmake" "${PROJECT_BINARY_DIR}/cmake/ScopixConfigVersion.cmake"
  DESTINATION "${SCOPIX_INSTALL_PACKAGE}")
