# SPDX-License-Identifier: MIT
# A node with a field of every type, for tests, benchmarks and fuzzers: link FieldGallery, include
# <support/SoFieldGallery.h>. Whoever links it knows the type by its name too.
include_guard(GLOBAL)
add_library(FieldGallery OBJECT "${CMAKE_CURRENT_LIST_DIR}/SoFieldGallery.cpp" "${CMAKE_CURRENT_LIST_DIR}/SoFieldGallery.h")
target_link_libraries(FieldGallery PUBLIC Scopix::xsg PRIVATE Scopix::settings)
target_include_directories(FieldGallery PUBLIC "${CMAKE_CURRENT_LIST_DIR}/..")
