# SPDX-License-Identifier: MIT
scopix_add_bench(large_scenes Scopix::xsg benchmark::benchmark Epoxy::Epoxy)
