// SPDX-License-Identifier: MIT
// The colours that curves and bars begin with.
#pragma once

#include <QColor>

#include <vector>

/// How many colours there are to choose from.
constexpr int CurveColorCount = 5 * 5 * 5;

/// A random colour, each of whose components is 0, 85, 127, 170 or 255: one that can be seen on white and, as
/// long as there is any, distinguishable from those that are used.
QColor randomCurveColor(const std::vector<QColor>& used);
