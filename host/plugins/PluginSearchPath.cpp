// SPDX-License-Identifier: MIT
#include "plugins/PluginSearchPath.h"

#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

namespace scopix
{

namespace
{

// Programs and libraries lie beside others of every kind: there, only what is named like a plug-in is looked
// at.
constexpr QLatin1String AmongOthers("libSpx*.so");
constexpr QLatin1String Any("*.so");
constexpr QLatin1String Plugins("/scopix/plugins");

bool isDefaultExtensions(const QString& path)
{
    return QFileInfo(path).fileName() == QLatin1String("libSpxDefaults.so");
}

} // namespace

PluginSearchPath::PluginSearchPath()
    : PluginSearchPath(QCoreApplication::applicationDirPath(), OwnLibrary::folder())
{
}

PluginSearchPath::PluginSearchPath(const QString& programFolder, const QString& libraryFolder)
{
    add(programFolder, AmongOthers);
    add(programFolder + QStringLiteral("/../lib"), AmongOthers);
    add(programFolder + QStringLiteral("/../" SCOPIX_LIBRARY_FOLDER) + Plugins, Any);
    add(programFolder + QStringLiteral("/../lib") + Plugins, Any);
    add(libraryFolder, AmongOthers);
    add(libraryFolder + Plugins, Any);
    add(ofUser(), Any);
}

void PluginSearchPath::add(const QString& folder, const QString& pattern)
{
    m_places += Place{QDir::cleanPath(folder), pattern};
}

QString PluginSearchPath::ofUser()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + Plugins;
}

QStringList PluginSearchPath::folders() const
{
    QStringList folders;
    for (const Place& place : m_places)
        folders += place.folder;
    folders.removeDuplicates();
    return folders;
}

QStringList PluginSearchPath::filesIn(const Place& place)
{
    const QDir folder(place.folder);
    QStringList files = folder.entryList({place.pattern}, QDir::Files, QDir::Name);
    for (QString& file : files)
        file = QDir::cleanPath(folder.absoluteFilePath(file));
    return files;
}

QStringList PluginSearchPath::findAll() const
{
    QStringList found;
    QSet<QString> known;
    for (const Place& place : m_places) {
        for (const QString& path : filesIn(place)) {
            const QFileInfo file(path);
            if (known.contains(file.canonicalFilePath()) || known.contains(file.fileName()))
                continue;
            known << file.canonicalFilePath() << file.fileName();
            found += path;
        }
    }
    std::stable_partition(found.begin(), found.end(), isDefaultExtensions);
    return found;
}

bool PluginSearchPath::isShipped(const QString& path) const
{
    const QString folder = QFileInfo(path).canonicalPath();
    const auto isIt = [&](const Place& place) {
        return place.folder != ofUser() && QFileInfo(place.folder).canonicalFilePath() == folder;
    };
    return isDefaultExtensions(path) && std::any_of(m_places.begin(), m_places.end(), isIt);
}

} // namespace scopix
