# SPDX-License-Identifier: MIT
scopix_add_bench(scene_tree ScopixHostInternals Qt5::Widgets benchmark::benchmark)
