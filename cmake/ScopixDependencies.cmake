# SPDX-License-Identifier: MIT
# Every outside library, all from Debian 12 packages; the reasons stand in docs/architecture.md.

find_package(Threads REQUIRED)
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui LinguistTools Svg Widgets Xml)
find_package(Eigen3 3.4 REQUIRED NO_MODULE)
find_package(assimp REQUIRED)

# Neither Qwt nor libepoxy ship a CMake package, and Qwt's pkg-config file asks for modules that it does not need.
find_path(QWT_INCLUDE_DIR qwt_plot.h PATH_SUFFIXES qwt REQUIRED)
find_library(QWT_LIBRARY NAMES qwt-qt5 REQUIRED)
add_library(Qwt::Qwt UNKNOWN IMPORTED)
set_target_properties(Qwt::Qwt PROPERTIES IMPORTED_LOCATION "${QWT_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${QWT_INCLUDE_DIR}" INTERFACE_LINK_LIBRARIES Qt5::Widgets)

find_path(EPOXY_INCLUDE_DIR epoxy/gl.h REQUIRED)
find_library(EPOXY_LIBRARY NAMES epoxy REQUIRED)
add_library(Epoxy::Epoxy UNKNOWN IMPORTED)
set_target_properties(Epoxy::Epoxy PROPERTIES IMPORTED_LOCATION "${EPOXY_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${EPOXY_INCLUDE_DIR}")

if(SCOPIX_BUILD_TESTS)
  find_package(GTest REQUIRED)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
endif()
if(SCOPIX_BUILD_BENCH)
  find_package(benchmark REQUIRED)
endif()
