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

RecentFiles::RecentFiles(const QString& file)
    : m_file(file)
{
}

// Read on each call: another session may have added to it.
QStringList RecentFiles::list() const
{
    return m_file.value(key()).toStringList().mid(0, Most);
}

template <class Change>
QString RecentFiles::change(Change change)
{
    return m_file.change([&](QSettings& settings) {
        QStringList paths = settings.value(key()).toStringList();
        change(paths);
        settings.setValue(key(), QStringList(paths.mid(0, Most)));
    });
}

QString RecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return change([&](QStringList& paths) {
        paths.removeAll(absolute);
        paths.prepend(absolute);
    });
}

QString RecentFiles::remove(const QString& path)
{
    return change([&](QStringList& paths) { paths.removeAll(path); });
}

QString RecentFiles::clear()
{
    return change([](QStringList& paths) { paths.clear(); });
}

} // namespace scopix
