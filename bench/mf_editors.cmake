# SPDX-License-Identifier: MIT
scopix_add_bench(mf_editors SpxDefaultsObjects benchmark::benchmark)
target_sources(bench_mf_editors PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp")
