# SPDX-License-Identifier: MIT
scopix_add_bench(commands Scopix::xsg benchmark::benchmark)
add_dependencies(bench_commands scopix)
target_compile_definitions(bench_commands PRIVATE SCOPIX_PROGRAM="$<TARGET_FILE:scopix>")
# What the program links and nothing else: how long that takes to load, to read and to write.
add_executable(bench_plain_program plain_program.cpp)
target_link_libraries(bench_plain_program PRIVATE -Wl,--no-as-needed ScopixHost Scopix::xsg Qt5::Widgets Scopix::settings)
add_dependencies(bench_commands bench_plain_program)
target_compile_definitions(bench_commands PRIVATE PLAIN_PROGRAM="$<TARGET_FILE:bench_plain_program>")
