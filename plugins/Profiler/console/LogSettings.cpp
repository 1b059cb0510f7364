// SPDX-License-Identifier: MIT
#include "console/LogSettings.h"

#include "SettingsFile.h"

#include <algorithm>

namespace profiler
{

LogSettings LogSettings::read()
{
    const QSettings all = settingsFile();
    LogSettings read;
    read.showsTime = all.value(settingsKey("log/time")).toBool();
    read.showsThread = all.value(settingsKey("log/thread")).toBool();
    read.fold = LogFold(std::clamp(all.value(settingsKey("log/fold"), int(LogFold::Runs)).toInt(), 0, 2));
    read.context = std::clamp(all.value(settingsKey("log/context")).toInt(), 0, MostContext);
    return read;
}

void LogSettings::write() const
{
    QSettings all = settingsFile();
    all.setValue(settingsKey("log/time"), showsTime);
    all.setValue(settingsKey("log/thread"), showsThread);
    all.setValue(settingsKey("log/fold"), int(fold));
    all.setValue(settingsKey("log/context"), context);
}

} // namespace profiler
