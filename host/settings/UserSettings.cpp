// SPDX-License-Identifier: MIT
#include "settings/UserSettings.h"

#include <QStandardPaths>

namespace scopix
{

QString UserSettings::path(const QString& name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/scopix/") + name;
}

QString UserSettings::windowFile()
{
    return path(QStringLiteral("window.ini"));
}

} // namespace scopix
