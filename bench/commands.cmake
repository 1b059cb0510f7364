# SPDX-License-Identifier: MIT
scopix_add_bench(commands Scopix::xsg benchmark::benchmark)
add_dependencies(bench_commands scopix)
target_compile_definitions(bench_commands PRIVATE SCOPIX_PROGRAM="$<TARGET_FILE:scopix>")
# Nothing but what the program links: how long that takes to load.
add_executable(bench_empty_program empty_program.cpp)
target_link_libraries(bench_empty_program PRIVATE -Wl,--no-as-needed ScopixHost Scopix::xsg Qt5::Widgets Scopix::settings)
add_dependencies(bench_commands bench_empty_program)
target_compile_definitions(bench_commands PRIVATE EMPTY_PROGRAM="$<TARGET_FILE:bench_empty_program>")
