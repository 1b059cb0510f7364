# SPDX-License-Identifier: MIT
scopix_add_bench(animation Scopix::xsg)
