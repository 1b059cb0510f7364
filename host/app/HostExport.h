// SPDX-License-Identifier: MIT
// Marks what libScopixHost shows; everything else stays inside.
#pragma once

#define SCOPIX_HOST_API __attribute__((visibility("default")))
