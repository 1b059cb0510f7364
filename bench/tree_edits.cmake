# SPDX-License-Identifier: MIT
scopix_add_bench(tree_edits ScopixHostInternals Qt5::Widgets benchmark::benchmark)
