# SPDX-License-Identifier: MIT
# What an installed Scopix consists of: the program, its libraries, the default plug-in, the scenes, and
# the SDK (headers and the CMake package Scopix) that another plug-in or an embedding program builds on:
#
#     find_package(Scopix 1.0 REQUIRED)
#     target_link_libraries(mine PRIVATE Scopix::ExtenderAPI)
include(CMakePackageConfigHelpers)

set(SCOPIX_INSTALL_PLUGINS "${CMAKE_INSTALL_LIBDIR}/scopix/plugins")
set(SCOPIX_INSTALL_PACKAGE "${CMAKE_INSTALL_LIBDIR}/cmake/Scopix")

# Each library finds the others wherever the whole is put.
function(scopix_install_library target exported_name)
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${exported_name} INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${target} EXPORT ScopixTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endfunction()

function(scopix_install_headers folder prefix)
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/${folder}/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${prefix}"
    FILES_MATCHING PATTERN "*.h")
endfunction()

scopix_install_library(xsg xsg)
scopix_install_headers(xsg xsg)

scopix_install_library(ScopixExtenderAPI ExtenderAPI)
scopix_install_headers(extender scopix)

scopix_install_library(ScopixEditing Editing)
list(TRANSFORM SCOPIX_EDITING_HEADERS PREPEND "${PROJECT_SOURCE_DIR}/editing/" OUTPUT_VARIABLE editing_headers)
install(FILES ${editing_headers} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/scopix/editing")

scopix_install_library(ScopixHost Host)
scopix_install_headers(host scopix-host)
set_property(TARGET ScopixHost APPEND PROPERTY
  INTERFACE_INCLUDE_DIRECTORIES "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/scopix-host>")

set_target_properties(scopix PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
install(TARGETS scopix RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
set_target_properties(scopix-read-model PROPERTIES INSTALL_RPATH "$ORIGIN/..")
install(TARGETS scopix-read-model RUNTIME DESTINATION "${CMAKE_INSTALL_LIBDIR}/scopix")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/data/" DESTINATION "${CMAKE_INSTALL_DATADIR}/scopix")

set_target_properties(SpxDefaults PROPERTIES INSTALL_RPATH "$ORIGIN/../..")
install(TARGETS SpxDefaults LIBRARY DESTINATION "${SCOPIX_INSTALL_PLUGINS}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/ScopixConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/cmake/ScopixConfig.cmake"
  INSTALL_DESTINATION "${SCOPIX_INSTALL_PACKAGE}" PATH_VARS SCOPIX_INSTALL_PLUGINS)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/cmake/ScopixConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/cmake/ScopixConfig.cmake" "${PROJECT_BINARY_DIR}/cmake/ScopixConfigVersion.cmake"
  DESTINATION "${SCOPIX_INSTALL_PACKAGE}")
install(EXPORT ScopixTargets NAMESPACE Scopix:: DESTINATION "${SCOPIX_INSTALL_PACKAGE}")
