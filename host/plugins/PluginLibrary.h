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
    /// What can be said before any code of the library runs: empty where the file is a whole library from
    /// somebody trusted, made for this host; else what is wrong, as the end of a sentence about "it".
    static QString whyNot(const QString& path);
    /// Null when the library cannot be used; `reason` then is that of whyNot(), or what its code did.
    static std::unique_ptr<PluginLibrary> load(const QString& path, QString& reason);
    ~PluginLibrary();
    PluginLibrary(const PluginLibrary&) = delete;
    PluginLibrary& operator=(const PluginLibrary&) = delete;

    SpxPlugin* plugin() const { return m_plugin; }
    QString path() const { return m_library.fileName(); }
    /// The plug-in's own name, or the file's where it gives none.
    QString name() const;

    /// Runs unloadPlugin; the object is gone. Empty, or what was thrown.
    QString unload();

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
