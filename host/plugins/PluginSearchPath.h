// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace scopix
{

/// Where plug-ins are found without being named: beside the program and in the plug-in folder of the tree
/// that it is installed in; the same beside the host library, which an embedding program may have from
/// elsewhere; and in the user's own folder, in this order.
class PluginSearchPath
{
public:
    /// Of this program and this host library.
    PluginSearchPath();
    /// Of a program and a host library in these folders.
    PluginSearchPath(const QString& programFolder, const QString& libraryFolder);

    /// The user's own folder for plug-ins; it need not exist.
    static QString ofUser();

    /// The folders in the order of their search, each once, whether they exist or not.
    QStringList folders() const;

    /// The plug-in libraries there: the default extensions first, on which the others build, then in the
    /// order of the folders and of their names. No file comes twice, whatever links lead to it; of two files
    /// of one name, the first found counts.
    QStringList findAll() const;

    /// It is the default extensions of this program's own installation.
    bool isShipped(const QString& path) const;

private:
    struct Place {
        QString folder;
        QString pattern;
    };

    void add(const QString& folder, const QString& pattern);
    static QStringList filesIn(const Place& place);

    QList<Place> m_places;
};

} // namespace scopix
