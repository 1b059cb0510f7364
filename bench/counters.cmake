# SPDX-License-Identifier: MIT
scopix_add_bench(counters_viewer SpxDefaultsObjects benchmark::benchmark)
scopix_add_bench(counters_manager SpxDefaultsObjects benchmark::benchmark)
