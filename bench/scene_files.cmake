# SPDX-License-Identifier: MIT
scopix_add_bench(scene_files Scopix::xsg benchmark::benchmark)
