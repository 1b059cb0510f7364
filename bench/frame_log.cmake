# SPDX-License-Identifier: MIT
scopix_add_bench(frame_log Scopix::xsg benchmark::benchmark)
