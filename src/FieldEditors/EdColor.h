// SPDX-License-Identifier: MIT
// From colour components, normally 0 to 1, to what Qt paints.
#pragma once

#include <QColor>

/// Truncated and clamped to 0..255; what is no number counts as 0.
inline int colorChannel(float component)
{
    const double scaled = double(component) * 255.0;
    if (!(scaled > 0))
        return 0;
    return scaled >= 255.0 ? 255 : int(scaled);
}

inline QColor toQColor(float red, float green, float blue)
{
    return {colorChannel(red), colorChannel(green), colorChannel(blue)};
}
