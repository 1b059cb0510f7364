# SPDX-License-Identifier: MIT
scopix_add_bench(changes ScopixHostInternals Qt5::Widgets benchmark::benchmark)
