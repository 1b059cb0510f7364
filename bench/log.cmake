# SPDX-License-Identifier: MIT
scopix_add_bench(log SpxProfilerObjects benchmark::benchmark)
