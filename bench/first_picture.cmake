# SPDX-License-Identifier: MIT
scopix_add_bench(first_picture Qt5::Widgets)
target_compile_definitions(bench_first_picture PRIVATE SCOPIX_PROGRAM="$<TARGET_FILE:scopix>"
  SCOPIX_SCENE="${PROJECT_SOURCE_DIR}/data/scenes/showcase.xsg")
add_dependencies(bench_first_picture scopix SpxDefaults SpxInspector)
