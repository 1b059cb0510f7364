# SPDX-License-Identifier: MIT
scopix_add_bench(scene_tree Scopix::Host Qt5::Widgets benchmark::benchmark)
