// SPDX-License-Identifier: MIT
#include "plugins/HostPluginsManager.h"

#include "services/HostServices.h"

namespace scopix
{

HostPluginsManager::HostPluginsManager(HostServices& services, HostShell& shell, ProfileFile file,
                                       PluginRecords records)
    : m_services(services)
    , m_profiles(std::move(file))
    , m_guard(std::move(records))
    , m_plugins(services, shell)
    , m_switch([this] { applyProfile(); })
{
    m_settled.setSingleShot(true);
    connect(&m_settled, &QTimer::timeout, this, [this] { m_guard.settle(); });
    connect(&m_profiles, &ProfileList::failed, this, &HostPluginsManager::failed);
    connect(&m_plugins, &PluginLoader::failed, this, &HostPluginsManager::failed);
    connect(&m_profiles, &ProfileList::activeChanged, this, &HostPluginsManager::requestSwitch);
    connect(&m_plugins, &PluginLoader::extensionsChanged, this, &HostPluginsManager::registerExtensions);
}

HostPluginsManager::~HostPluginsManager()
{
    unloadAll();
}

bool HostPluginsManager::loadPlugin(const QString& path, PluginGuard::Asked asked)
{
    if (m_plugins.isLoaded(path))
        return true;
    QString reason = PluginLibrary::whyNot(path);
    if (reason.isEmpty())
        reason = m_guard.enter(path, asked);
    emit quarantineChanged();
    if (!reason.isEmpty()) {
        emit failed(PluginLoader::notLoaded(path, reason));
        return false;
    }
    const bool isLoaded = loadGuarded(path);
    m_guard.leave(path, isLoaded);
    // Behind everything that its code has posted or timed for the first turn of the event loop.
    m_settled.start();
    return isLoaded;
}

bool HostPluginsManager::loadGuarded(const QString& path)
{
    const std::size_t first = m_plugins.extensions().size();
    if (!m_plugins.load(path))
        return false;
    activateFrom(first);
    m_services.tellSelectionAgain();
    return true;
}

bool HostPluginsManager::tryAgain(const QString& path)
{
    return loadPlugin(path, PluginGuard::Asked::Named);
}

void HostPluginsManager::unloadAll()
{
    m_switch.cancel();
    m_plugins.unloadAll();
}

QList<SpxProfile*> HostPluginsManager::getProfilesList() const
{
    QList<SpxProfile*> list;
    for (const auto& profile : m_profiles.profiles())
        list += profile.get();
    return list;
}

const SpxProfileSetting* HostPluginsManager::getProfileSetting(const SpxExtension* extension) const
{
    return m_plugins.has(extension) ? &m_profiles.activeProfile()->setting() : nullptr;
}

void HostPluginsManager::registerExtensions()
{
    std::vector<ProfiledExtension> extensions;
    for (const ManagedExtension& each : m_plugins.extensions())
        extensions.push_back({each.extension(), each.name(), each.isEditor(), each.isLoaded()});
    m_profiles.setExtensions(std::move(extensions));
}

void HostPluginsManager::requestSwitch()
{
    if (!m_plugins.extensions().empty())
        m_switch.request();
}

void HostPluginsManager::applyProfile()
{
    {
        // Editors that go apply what was typed.
        const UserInput::Scope scope(m_services.history().input(), UserInput::Scope::User);
        m_plugins.deactivateAll();
    }
    activateFrom(0);
    m_profiles.deleteRetired();
    m_services.tellSelectionAgain();
    emit profileApplied();
}

void HostPluginsManager::activateFrom(std::size_t first)
{
    std::vector<ManagedExtension>& extensions = m_plugins.extensions();
    for (std::size_t i = first; i < extensions.size(); ++i) {
        ManagedExtension& each = extensions[i];
        if (m_profiles.activeProfile()->controls(each.name(), each.isEditor()))
            each.activate();
    }
}

} // namespace scopix
