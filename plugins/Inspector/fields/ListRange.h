// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class SoField;

namespace inspector
{

struct ListRange {
    double low;
    double high;
};

/// The smallest and the largest number of a list; nothing for lists of other values, and for those so long
/// that looking through all of them would be felt.
std::optional<ListRange> rangeOf(const SoField& list);

} // namespace inspector
