// SPDX-License-Identifier: MIT
// What is shown of texts that a file may make as long as it likes: to lay out megabytes takes seconds. The
// texts themselves stay whole.
#pragma once

#include <scopix/editing/SpxText.h>

#include <cmath>

constexpr int LongestInCell = 1000;
constexpr int LongestInLine = 100; // where nothing scrolls: in tabs, boxes, labels and tool tips

inline QString beginningOf(const QString& text, int longest = LongestInCell)
{
    return text.size() <= longest ? text : text.left(longest) + QChar(0x2026);
}

/// Empty for NaN, which stands for a sample that was never taken.
inline QString numberText(double value)
{
    return std::isnan(value) ? QString() : QString::number(value, 'g', 6);
}

/// The same as the first, without first making a whole text of another kind.
inline QString beginningOf(const SbString& text)
{
    constexpr int MostBytes = 4 * (LongestInCell + 1); // of as many characters, and of one that may be cut
    const std::string_view whole(text.str());
    return beginningOf(SpxText::toQString(SbString(whole.substr(0, MostBytes))));
}
