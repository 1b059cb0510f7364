// SPDX-License-Identifier: MIT
#include "console/LogSettings.h"

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
    return QSettings(folder + QLatin1String("/scopix/profiler.ini"), QSettings::IniFormat);
}

// Qt keeps the keys beyond the end of the plug-in: they must not lie in its memory, as literals would.
QString key(const char* name)
{
    return QString::fromLatin1(name);
}

} // namespace

LogSettings LogSettings::read()
{
    const QSettings all = settings();
    LogSettings read;
    read.showsTime = all.value(key("log/time")).toBool();
    read.showsThread = all.value(key("log/thread")).toBool();
    read.fold = LogFold(std::clamp(all.value(key("log/fold"), int(LogFold::Runs)).toInt(), 0, 2));
    read.context = std::clamp(all.value(key("log/context")).toInt(), 0, MostContext);
    return read;
}

void LogSettings::write() const
{
    QSettings all = settings();
    all.setValue(key("log/time"), showsTime);
    all.setValue(key("log/thread"), showsThread);
    all.setValue(key("log/fold"), int(fold));
    all.setValue(key("log/context"), context);
}

} // namespace profiler
