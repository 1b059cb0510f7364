# SPDX-License-Identifier: MIT
scopix_add_bench(list_table SpxInspectorObjects benchmark::benchmark)
target_sources(bench_list_table PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp")
