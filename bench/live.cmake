# SPDX-License-Identifier: MIT
scopix_add_bench(live ScopixLiveXsg benchmark::benchmark Epoxy::Epoxy)
