// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QStandardPaths>

namespace profiler
{

/// Where all docks of the plug-in keep what the user chose.
inline QSettings settingsFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QSettings(folder + QLatin1String("/scopix/profiler.ini"), QSettings::IniFormat);
}

/// Qt keeps the keys beyond the end of the plug-in: they must not lie in its memory, as literals would.
inline QString settingsKey(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace profiler
