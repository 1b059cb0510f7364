// What tables show of what a counter says of itself.
#pragma once

#include "EdText.h"

// The beginning of a text that is very long: to lay out megabytes takes seconds.
inline QString beginningOf(const SbString& text)
{
    constexpr int Longest = 1000;
    const QString whole = toQString(text);
    return whole.size() <= Longest ? whole : whole.left(Longest) + QChar(0x2026);
}
