// SPDX-License-Identifier: MIT
// Marks what libxsg offers to other libraries; everything else stays hidden.
#pragma once

#define XSG_API __attribute__((visibility("default")))
