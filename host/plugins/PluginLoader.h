// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/ManagedExtension.h"
#include "plugins/PluginLibrary.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <vector>

namespace scopix
{

class HostServices;
class HostShell;

/// The loaded plug-ins and their extensions. Plug-ins are unloaded in the reverse order of their loading,
/// when nothing of theirs is left: no active extension, no edit, no deferred deletion. No exception of a
/// plug-in leaves it. GUI thread only.
class PluginLoader : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    PluginLoader(HostServices& services, HostShell& shell);
    /// Everything has been unloaded before.
    ~PluginLoader() override;

    /// Loads the library and its extensions, and activates none of them. False when the plug-in cannot be
    /// used, which failed() reports.
    bool load(const QString& path);
    bool isLoaded(const QString& path) const;
    static QString notLoaded(const QString& path, const QString& reason);
    void unloadAll();
    QStringList names() const;

    /// In the order of their registration; valid until the next load.
    std::vector<ManagedExtension>& extensions() { return m_extensions; }
    const std::vector<ManagedExtension>& extensions() const { return m_extensions; }
    bool has(const SpxExtension* extension) const { return m_known.contains(extension); }
    /// In the reverse order.
    void deactivateAll();

signals:
    void extensionsChanged();
    /// Something went wrong; one sentence.
    void failed(const QString& sentence);

private:
    bool startPlugin(PluginLibrary& library);
    void adoptExtensions(const PluginLibrary& library);
    void unloadExtensions();
    void reportUnload(const PluginLibrary& library, const char* act, const QString& why);

    HostServices& m_services;
    HostShell& m_shell;
    std::vector<std::unique_ptr<PluginLibrary>> m_libraries;
    QSet<QString> m_paths; // of m_libraries
    std::vector<ManagedExtension> m_extensions;
    QSet<const SpxExtension*> m_known; // those of m_extensions
};

} // namespace scopix
