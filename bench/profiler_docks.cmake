# SPDX-License-Identifier: MIT
scopix_add_bench(profiler_docks SpxProfilerObjects benchmark::benchmark)
