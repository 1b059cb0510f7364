// SPDX-License-Identifier: MIT
// Values between the keys of an animation.
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>

namespace xsg
{

/// Keys in the order of their times. A key has `width` numbers; a cubic one has three times as many: its
/// incoming tangent, its value, its outgoing tangent, the tangents per second.
struct KeyList {
    enum class Between { Step, Linear, Cubic };

    const float* times = nullptr;
    std::size_t count = 0;
    const float* values = nullptr;
    std::size_t width = 1;
    Between between = Between::Linear;
    bool isRotation = false; // four numbers, which turn at a steady pace the shorter way
};

/// Writes `width` numbers. Before the first key and after the last one, these hold. Nothing for no keys.
XSG_API void sampleKeys(const KeyList& keys, float time, float* to);

} // namespace xsg
