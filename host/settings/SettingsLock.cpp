// SPDX-License-Identifier: MIT
#include "settings/SettingsLock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace scopix
{

namespace
{

// Apart from the settings themselves, which are replaced by others of their name.
std::string lockOf(const QString& file)
{
    const QString folder = QFileInfo(file).path();
    QDir().mkpath(folder);
    return QFile::encodeName(folder + QStringLiteral("/settings.lock")).toStdString();
}

} // namespace

SettingsLock::SettingsLock(const QString& file)
    : m_lock(lockOf(file), xsg::FileLock::Kind::Exclusive)
{
}

QString SettingsLock::reasonAgainst() const
{
    return m_lock.isBusy()
               ? QCoreApplication::translate("SettingsLock", "another program is just changing the settings")
               : QString();
}

} // namespace scopix
