# SPDX-License-Identifier: MIT
scopix_add_bench(surfaces Scopix::xsg benchmark::benchmark)
