# SPDX-License-Identifier: MIT
scopix_add_bench(console_lines SpxDefaultsObjects benchmark::benchmark)
target_sources(bench_console_lines PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp")
