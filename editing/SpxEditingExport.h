// SPDX-License-Identifier: MIT
// Marks what libScopixEditing offers to plug-ins; everything else stays hidden.
#pragma once

#define SPX_EDITING_API __attribute__((visibility("default")))
