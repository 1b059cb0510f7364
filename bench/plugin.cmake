# SPDX-License-Identifier: MIT
scopix_add_bench(plugin_load Scopix::ExtenderAPI Qt5::Widgets benchmark::benchmark)
target_sources(bench_plugin_load PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/TestHost.cpp")
target_compile_definitions(bench_plugin_load PRIVATE SCOPIX_PLUGIN="${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/libSpxDefaults.so")
add_dependencies(bench_plugin_load SpxDefaults)
