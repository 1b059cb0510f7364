# SPDX-License-Identifier: MIT
scopix_add_bench(sf_editors SpxDefaultsObjects FieldGallery benchmark::benchmark)
target_sources(bench_sf_editors PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp"
  "${PROJECT_SOURCE_DIR}/tests/src/sfwidgets/EditorRows.cpp")
