// SPDX-License-Identifier: MIT
#pragma once

#include <QLibrary>
#include <QString>

#include <memory>

class SpxPlugin;

namespace scopix
{

/// One loaded plug-in library and the plug-in object that it made. Unloading runs the library's unloadPlugin
/// and takes the library out of the process; everything of the plug-in must have been released before. GUI
/// thread only.
class PluginLibrary
{
public:
    /// Null when the library cannot be used; `error` then names the file and what is wrong with it. A file
    /// that is no whole library, or was made for something else than this host, is refused before its code
    /// runs.
    static std::unique_ptr<PluginLibrary> load(const QString& path, QString& error);
    ~PluginLibrary();
    PluginLibrary(const PluginLibrary&) = delete;
    PluginLibrary& operator=(const PluginLibrary&) = delete;

    SpxPlugin* plugin() const { return m_plugin; }
    QString path() const { return m_library.fileName(); }
    /// The plug-in's own name, or the file's where it gives none.
    QString name() const;

private:
    using LoadPlugin = SpxPlugin* (*)();
    using UnloadPlugin = void (*)();

    explicit PluginLibrary(const QString& path);
    QString open();
    QString makePlugin();

    QLibrary m_library;
    SpxPlugin* m_plugin = nullptr;
    LoadPlugin m_load = nullptr;
    UnloadPlugin m_unload = nullptr;
};

} // namespace scopix
