// SPDX-License-Identifier: MIT
#include "plugins/PluginSearchPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QSet>
#include <QStandardPaths>

namespace scopix
{

namespace
{

struct Place {
    QString folder;
    QString pattern;
};

// Beside the program lie libraries of every kind: only those that are named like a plug-in are looked at.
QList<Place> places()
{
    const QString sharedPattern = QStringLiteral("libSpx*.so");
    const QString ownPattern = QStringLiteral("*.so");
    const QDir program(QCoreApplication::applicationDirPath());
    return {
        {program.path(), sharedPattern},
        {program.filePath(QStringLiteral("../lib")), sharedPattern},
        {program.filePath(QStringLiteral("../" SCOPIX_LIBRARY_FOLDER "/scopix/plugins")), ownPattern},
        {program.filePath(QStringLiteral("../lib/scopix/plugins")), ownPattern},
        {PluginSearchPath::ofUser(), ownPattern},
    };
}

} // namespace

QString PluginSearchPath::ofUser()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/scopix/plugins");
}

QStringList PluginSearchPath::findAll()
{
    QStringList found;
    QSet<QString> names;
    for (const Place& place : places()) {
        const QDir folder(place.folder);
        const QStringList files = folder.entryList({place.pattern}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            if (names.contains(file))
                continue;
            names.insert(file);
            found += QDir::cleanPath(folder.absoluteFilePath(file));
        }
    }
    return found;
}

} // namespace scopix
