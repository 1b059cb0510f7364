// SPDX-License-Identifier: MIT
// A viewer with a clock of the test's own, whose samples come when the test wants them.
#pragma once

#include "CounterFixture.h"

struct Clock {
    double seconds = 0.5;
    int resets = 0;
    static double elapsed(void* clock) { return static_cast<Clock*>(clock)->seconds; }
    static void reset(void* clock) { ++static_cast<Clock*>(clock)->resets; }
};

class CounterViewer : public CounterHome
{
protected:
    CounterViewer()
    {
        viewer.getTimer()->stop();
        viewer.setElapsedSource(Clock::elapsed, Clock::reset, &clock);
        viewer.resize(500, 400);
        viewer.show();
        QCoreApplication::processEvents();
    }
    void show(const QStringList& names)
    {
        for (const QString& name : names)
            viewer.doubleClickEvent(name);
    }
    double sample(const char* name, int index = 0) { return viewer.findViewed(name)->getHistory()[index]; }

    Clock clock;
    SoPerfCounterViewer viewer;
};
