// SPDX-License-Identifier: MIT
#include "document/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace scopix
{

namespace
{

const QString& key()
{
    static const QString name = QStringLiteral("recentFiles");
    return name;
}

} // namespace

RecentFiles::RecentFiles(QString file)
    : m_file(std::move(file))
{
}

// Read on each call: another session may have added to it.
QStringList RecentFiles::list() const
{
    return QSettings(m_file, QSettings::IniFormat).value(key()).toStringList().mid(0, Most);
}

void RecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList paths = list();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    write(paths.mid(0, Most));
}

void RecentFiles::remove(const QString& path)
{
    QStringList paths = list();
    paths.removeAll(path);
    write(paths);
}

void RecentFiles::clear()
{
    write({});
}

void RecentFiles::write(const QStringList& paths) const
{
    QSettings(m_file, QSettings::IniFormat).setValue(key(), paths);
}

} // namespace scopix
