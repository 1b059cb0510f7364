# SPDX-License-Identifier: MIT
scopix_add_bench(inspector_panel SpxInspectorObjects benchmark::benchmark)
target_sources(bench_inspector_panel PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp")
