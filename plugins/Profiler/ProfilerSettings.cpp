// SPDX-License-Identifier: MIT
#include "ProfilerSettings.h"

#include "SettingsFile.h"

#include <algorithm>

namespace profiler
{

namespace
{

constexpr const char* Budget = "budget";
constexpr const char* BarWidth = "barWidth";
constexpr const char* Curves = "curves";
constexpr const char* CostAreas = "costAreas";
constexpr const char* CostColumn = "costColumn";
constexpr const char* CostUpwards = "costUpwards";
constexpr int TimeColumn = 1;
constexpr int MostCurves = 20;

} // namespace

double ProfilerSettings::budget()
{
    return std::clamp(settingsFile().value(settingsKey(Budget), 16.7).toDouble(), 0.1, 10000.0);
}

void ProfilerSettings::setBudget(double milliseconds)
{
    settingsFile().setValue(settingsKey(Budget), milliseconds);
}

int ProfilerSettings::barWidth()
{
    return settingsFile().value(settingsKey(BarWidth), 4).toInt();
}

void ProfilerSettings::setBarWidth(int pixels)
{
    settingsFile().setValue(settingsKey(BarWidth), pixels);
}

QStringList ProfilerSettings::curves()
{
    return settingsFile().value(settingsKey(Curves)).toStringList().mid(0, MostCurves);
}

void ProfilerSettings::setCurves(const QStringList& formulas)
{
    settingsFile().setValue(settingsKey(Curves), formulas);
}

int ProfilerSettings::costAreas()
{
    return settingsFile().value(settingsKey(CostAreas), 0).toInt();
}

void ProfilerSettings::setCostAreas(int figure)
{
    settingsFile().setValue(settingsKey(CostAreas), figure);
}

int ProfilerSettings::costColumn()
{
    return settingsFile().value(settingsKey(CostColumn), TimeColumn).toInt();
}

Qt::SortOrder ProfilerSettings::costOrder()
{
    return settingsFile().value(settingsKey(CostUpwards), false).toBool() ? Qt::AscendingOrder
                                                                          : Qt::DescendingOrder;
}

void ProfilerSettings::setCostOrder(int column, Qt::SortOrder order)
{
    QSettings all = settingsFile();
    all.setValue(settingsKey(CostColumn), column);
    all.setValue(settingsKey(CostUpwards), order == Qt::AscendingOrder);
}

} // namespace profiler
