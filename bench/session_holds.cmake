# SPDX-License-Identifier: MIT
scopix_add_bench(session_holds ScopixHostInternals Qt5::Widgets)
