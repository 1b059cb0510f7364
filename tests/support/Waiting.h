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

/// Likewise until the widget's window takes the keys. On a display without a window manager, a window of
/// another program that opens at the same moment may take them away: it asks for them again then.
inline bool waitForActive(QWidget* widget)
{
    constexpr int AgainMs = 3000;
    for (int waited = 0; waited < MostWaitMs; waited += AgainMs) {
        if (QTest::qWaitForWindowActive(widget, AgainMs))
            return true;
        widget->activateWindow();
    }
    return false;
}

/// Likewise until it stands on the screen.
inline bool waitForExposed(QWidget* widget)
{
    return QTest::qWaitForWindowExposed(widget, MostWaitMs);
}
