// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class SoField;

/// A change on its way from a field through its node to the root. Lives on the stack of the change.
struct SoNotification {
    SoField* field = nullptr; // the field that changed, or null when a node's children did
    int start = 0;            // elements that changed in a multi-value field
    int count = -1;           // -1: all of them
    std::uint64_t serial = 0; // one per change: a receiver that has seen it need not pass it on again
};
