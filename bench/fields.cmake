# SPDX-License-Identifier: MIT
scopix_add_bench(xsg_fields Scopix::xsg FieldGallery benchmark::benchmark)
