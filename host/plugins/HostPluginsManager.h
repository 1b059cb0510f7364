// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/PluginGuard.h"
#include "plugins/PluginLoader.h"
#include "profiles/ProfileList.h"
#include "support/DeferredUntilNonModal.h"

#include <scopix/SpxPluginsManager.h>

#include <QTimer>

namespace scopix
{

/// What extensions see of profiles, and what makes the active profile's extensions the active ones: when a
/// plug-in was loaded, and in a coming turn of the event loop when the profile changed. GUI thread only.
class HostPluginsManager : public QObject, public SpxPluginsManager
{
    Q_OBJECT

public:
    /// Services and shell must outlive the manager.
    HostPluginsManager(HostServices& services, HostShell& shell,
                       ProfileFile file = ProfileFile(ProfileFile::standardPath()),
                       PluginRecords records = PluginRecords(PluginRecords::standardFolder()));
    ~HostPluginsManager() override;

    ProfileList& profiles() { return m_profiles; }
    const ProfileList& profiles() const { return m_profiles; }

    /// Loads the library and its extensions and activates those that the active profile controls. False when
    /// the plug-in cannot be used, which failed() reports; loading the same file again does nothing.
    bool loadPlugin(const QString& path, PluginGuard::Asked asked = PluginGuard::Asked::Found);
    void unloadAll();
    /// Whether a plug-in that is new or has changed is loaded in a process of its own first; see PluginGuard.
    void setTriesFirst(bool tries) { m_guard.setTriesFirst(tries); }
    const QStringList& quarantined() const { return m_guard.quarantined(); }
    /// Loads one that is in quarantine, as the user asks for.
    bool tryAgain(const QString& path);
    QStringList pluginNames() const { return m_plugins.names(); }
    const std::vector<ManagedExtension>& extensions() const { return m_plugins.extensions(); }

    QList<SpxProfile*> getProfilesList() const override;
    SpxProfile* getActiveProfile() const override { return m_profiles.activeProfile(); }
    void setActiveProfile(SpxProfile* profile) override { m_profiles.setActiveProfile(profile); }
    const SpxProfileSetting* getProfileSetting(const SpxExtension* extension) const override;

signals:
    /// The extensions have been switched.
    void profileApplied();
    void quarantineChanged();
    /// Something went wrong; one sentence.
    void failed(const QString& sentence);

private:
    bool loadGuarded(const QString& path);
    void registerExtensions();
    void requestSwitch();
    void applyProfile();
    void activateFrom(std::size_t first);

    HostServices& m_services;
    ProfileList m_profiles;
    PluginGuard m_guard;
    QTimer m_settled;
    PluginLoader m_plugins;
    DeferredUntilNonModal m_switch;
};

} // namespace scopix
