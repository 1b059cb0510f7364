// SPDX-License-Identifier: MIT
// Waiting for what is to come, with a patience that suffices under a sanitizer on a busy machine. GUI thread.
#pragma once

#include <QtTest>

constexpr int MostWaitMs = 60000;

/// Runs the event loop until the condition is true; false where that does not come.
template <class Condition>
bool waitFor(Condition&& condition)
{
    return QTest::qWaitFor(std::forward<Condition>(condition), MostWaitMs);
}

/// Likewise until the widget's window takes the keys.
inline bool waitForActive(QWidget* widget)
{
    return QTest::qWaitForWindowActive(widget, MostWaitMs);
}

/// Likewise until it stands on the screen.
inline bool waitForExposed(QWidget* widget)
{
    return QTest::qWaitForWindowExposed(widget, MostWaitMs);
}
