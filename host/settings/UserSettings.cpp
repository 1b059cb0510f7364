// SPDX-License-Identifier: MIT
#include "settings/UserSettings.h"

#include <QDir>
#include <QStandardPaths>

namespace scopix
{

QString UserSettings::path(const QString& name)
{
    return absolute(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)) +
           QStringLiteral("/scopix/") + name;
}

QString UserSettings::absolute(const QString& folder)
{
    return QDir::isAbsolutePath(folder) ? folder : QDir::home().filePath(folder);
}

QString UserSettings::windowFile()
{
    return path(QStringLiteral("window.ini"));
}

} // namespace scopix
