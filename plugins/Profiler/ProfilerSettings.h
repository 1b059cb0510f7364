// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace profiler
{

/// What the user chose in the docks, kept for the next session.
struct ProfilerSettings {
    static double budget(); // milliseconds
    static void setBudget(double milliseconds);
    static int barWidth(); // pixels
    static void setBarWidth(int pixels);
    static QStringList curves(); // formulas
    static void setCurves(const QStringList& formulas);
    static int costAreas(); // what the areas tell
    static void setCostAreas(int figure);
    static int costColumn(); // that branches are sorted by
    static Qt::SortOrder costOrder();
    static void setCostOrder(int column, Qt::SortOrder order);
};

} // namespace profiler
