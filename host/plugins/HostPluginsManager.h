// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/ManagedExtension.h"
#include "plugins/PluginLibrary.h"
#include "profiles/ProfileFile.h"
#include "support/DeferredUntilNonModal.h"

#include <scopix/SpxPluginsManager.h>

#include <memory>
#include <vector>

namespace scopix
{

class HostServices;
class HostShell;

/// Plug-ins, their extensions and the profiles that say which of them are active. Plug-ins are unloaded in
/// the reverse order of their loading, when nothing of theirs is left: no active extension, no edit, no
/// deferred deletion. GUI thread only.
class HostPluginsManager : public QObject, public SpxPluginsManager
{
    Q_OBJECT

public:
    /// Services and shell must outlive the manager.
    HostPluginsManager(HostServices& services, HostShell& shell,
                       ProfileFile file = ProfileFile(ProfileFile::standardPath()));
    ~HostPluginsManager() override;

    /// Reads the profiles; before, there is only "Default". A damaged file is told by failed().
    void readProfiles();

    /// Loads the library and its extensions and activates those that the active profile controls. False when
    /// the plug-in cannot be used, which failed() tells; loading the same file again does nothing.
    bool loadPlugin(const QString& path);
    void unloadAll();
    QStringList pluginNames() const;

    QList<SpxProfile*> getProfilesList() const override;
    SpxProfile* getActiveProfile() const override { return m_active; }
    void setActiveProfile(SpxProfile* profile) override;
    const SpxProfileSetting* getProfileSetting(const SpxExtension* extension) const override;

    /// For those who manage profiles.
    const std::vector<std::unique_ptr<HostProfile>>& profiles() const { return m_profiles; }
    HostProfile* activeProfile() const { return m_active; }
    HostProfile* findProfile(const QString& name) const;
    /// Replaces all choices and writes them down. Profiles of the same name stay the same objects; when the
    /// active one is gone, "Default" becomes active. "Default" itself always stays.
    void setProfiles(std::vector<ProfileChoice> choices, const QString& active);
    /// Makes a profile of this name active for this session only, without writing it down.
    bool useProfile(const QString& name);
    const std::vector<ManagedExtension>& extensions() const { return m_extensions; }

signals:
    /// The list, a name or a choice changed.
    void profilesChanged();
    /// At once, when setActiveProfile() has changed it.
    void activeProfileChanged();
    /// The extensions have been switched.
    void profileApplied();
    /// Something went wrong; one sentence.
    void failed(const QString& sentence);

private:
    bool isLoaded(const QString& path) const;
    bool startPlugin(PluginLibrary& library);
    void adoptExtensions(const PluginLibrary& library);
    void adoptProfiles(std::vector<ProfileChoice> choices, const QString& active);
    void fillSettings();
    void makeActive(HostProfile* profile, bool remember);
    void applyProfile();
    bool controls(const HostProfile& profile, const ManagedExtension& extension) const;
    void deactivateAll();
    void save();
    std::vector<ProfileChoice> choices() const;

    HostServices& m_services;
    HostShell& m_shell;
    ProfileFile m_file;
    std::vector<std::unique_ptr<HostProfile>> m_profiles;
    std::vector<std::unique_ptr<HostProfile>> m_retired; // deleted ones, which a slot may still hold
    HostProfile* m_active = nullptr;
    QString m_rememberedActive; // by the settings file
    std::vector<std::unique_ptr<PluginLibrary>> m_plugins;
    std::vector<ManagedExtension> m_extensions; // in order of registration
    DeferredUntilNonModal m_switch;
};

} // namespace scopix
