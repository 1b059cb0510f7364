// SPDX-License-Identifier: MIT
// Marks what libscopix-live offers to other libraries; everything else stays hidden.
#pragma once

#define SCOPIX_LIVE_API __attribute__((visibility("default")))
