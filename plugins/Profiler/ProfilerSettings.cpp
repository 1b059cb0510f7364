// SPDX-License-Identifier: MIT
#include "ProfilerSettings.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace profiler
{

namespace
{

QSettings settings()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QSettings(folder + QStringLiteral("/scopix/profiler.ini"), QSettings::IniFormat);
}

// Qt keeps the keys beyond the end of the plug-in: they must not lie in its memory, as literals would.
QString key(const char* name)
{
    return QString::fromLatin1(name);
}

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
    return std::clamp(settings().value(key(Budget), 16.7).toDouble(), 0.1, 10000.0);
}

void ProfilerSettings::setBudget(double milliseconds)
{
    settings().setValue(key(Budget), milliseconds);
}

int ProfilerSettings::barWidth()
{
    return settings().value(key(BarWidth), 4).toInt();
}

void ProfilerSettings::setBarWidth(int pixels)
{
    settings().setValue(key(BarWidth), pixels);
}

QStringList ProfilerSettings::curves()
{
    return settings().value(key(Curves)).toStringList().mid(0, MostCurves);
}

void ProfilerSettings::setCurves(const QStringList& formulas)
{
    settings().setValue(key(Curves), formulas);
}

int ProfilerSettings::costAreas()
{
    return settings().value(key(CostAreas), 0).toInt();
}

void ProfilerSettings::setCostAreas(int figure)
{
    settings().setValue(key(CostAreas), figure);
}

int ProfilerSettings::costColumn()
{
    return settings().value(key(CostColumn), TimeColumn).toInt();
}

Qt::SortOrder ProfilerSettings::costOrder()
{
    return settings().value(key(CostUpwards), false).toBool() ? Qt::AscendingOrder : Qt::DescendingOrder;
}

void ProfilerSettings::setCostOrder(int column, Qt::SortOrder order)
{
    QSettings all = settings();
    all.setValue(key(CostColumn), column);
    all.setValue(key(CostUpwards), order == Qt::AscendingOrder);
}

} // namespace profiler
