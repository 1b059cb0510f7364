// SPDX-License-Identifier: MIT
#include "plugins/HostPluginsManager.h"

#include "services/HostServices.h"
#include "shell/HostShell.h"
#include "support/CatchExceptions.h"

#include <scopix/SpxPlugin.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>

#include <algorithm>

namespace scopix
{

HostPluginsManager::HostPluginsManager(HostServices& services, HostShell& shell, ProfileFile file)
    : m_services(services)
    , m_shell(shell)
    , m_file(std::move(file))
    , m_switch([this] { applyProfile(); })
{
    adoptProfiles({}, HostProfile::defaultName());
}

HostPluginsManager::~HostPluginsManager()
{
    unloadAll();
}

void HostPluginsManager::readProfiles()
{
    QString error;
    ProfileSettings settings = m_file.read(error);
    adoptProfiles(std::move(settings.profiles), settings.active);
    if (!error.isEmpty())
        emit failed(error);
}

bool HostPluginsManager::loadPlugin(const QString& path)
{
    if (isLoaded(path))
        return true;
    QString error;
    std::unique_ptr<PluginLibrary> library = PluginLibrary::load(path, error);
    if (!library) {
        emit failed(error);
        return false;
    }
    if (!startPlugin(*library))
        return false;
    const std::size_t first = m_extensions.size();
    adoptExtensions(*library);
    m_plugins.push_back(std::move(library));
    fillSettings();
    for (std::size_t i = first; i < m_extensions.size(); ++i) {
        if (controls(*m_active, m_extensions[i]))
            m_extensions[i].activate();
    }
    m_services.tellSelectionAgain();
    return true;
}

bool HostPluginsManager::isLoaded(const QString& path) const
{
    const QString file = QFileInfo(path).canonicalFilePath();
    const auto same = [&file](const auto& library) { return library->path() == file; };
    return !file.isEmpty() && std::any_of(m_plugins.begin(), m_plugins.end(), same);
}

bool HostPluginsManager::startPlugin(PluginLibrary& library)
{
    bool usable = false;
    QString why = catchExceptions([&] { usable = library.plugin()->load(); });
    if (usable && why.isEmpty())
        return true;
    if (why.isEmpty())
        why = tr("it says that it cannot be used");
    emit failed(tr("The plug-in “%1” was not loaded: its load() failed: %2.").arg(library.path(), why));
    catchExceptions([&] { library.plugin()->unload(); });
    return false;
}

void HostPluginsManager::adoptExtensions(const PluginLibrary& library)
{
    const auto report = [this](const QString& sentence) { emit failed(sentence); };
    for (SpxExtension* extension : library.plugin()->getExtensions()) {
        m_extensions.emplace_back(extension, library.name(), m_shell, report);
        m_extensions.back().load();
    }
}

void HostPluginsManager::unloadAll()
{
    m_switch.cancel();
    deactivateAll();
    std::for_each(m_extensions.rbegin(), m_extensions.rend(), [](ManagedExtension& each) { each.unload(); });
    m_extensions.clear();
    fillSettings();
    for (auto library = m_plugins.rbegin(); library != m_plugins.rend(); ++library)
        catchExceptions([&] { (*library)->plugin()->unload(); });
    // Code of the plug-ins that would run later would run after they are gone.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_services.history().clear();
    while (!m_plugins.empty())
        m_plugins.pop_back();
}

QStringList HostPluginsManager::pluginNames() const
{
    QStringList names;
    for (const auto& library : m_plugins)
        names += library->name();
    return names;
}

QList<SpxProfile*> HostPluginsManager::getProfilesList() const
{
    QList<SpxProfile*> list;
    for (const auto& profile : m_profiles)
        list += profile.get();
    return list;
}

void HostPluginsManager::setActiveProfile(SpxProfile* profile)
{
    const auto is = [profile](const auto& each) { return each.get() == profile; };
    const auto known = std::find_if(m_profiles.begin(), m_profiles.end(), is);
    if (known != m_profiles.end())
        makeActive(known->get(), true);
}

void HostPluginsManager::makeActive(HostProfile* profile, bool remember)
{
    const bool changed = m_active != profile;
    m_active = profile;
    if (remember && m_rememberedActive != profile->name()) {
        m_rememberedActive = profile->name();
        save();
    }
    if (!changed)
        return;
    m_switch.request();
    emit activeProfileChanged();
}

const SpxProfileSetting* HostPluginsManager::getProfileSetting(const SpxExtension* extension) const
{
    const auto is = [extension](const ManagedExtension& each) { return each.extension() == extension; };
    return std::any_of(m_extensions.begin(), m_extensions.end(), is) ? &m_active->setting() : nullptr;
}

HostProfile* HostPluginsManager::findProfile(const QString& name) const
{
    for (const auto& profile : m_profiles) {
        if (profile->name() == name)
            return profile.get();
    }
    return nullptr;
}

bool HostPluginsManager::useProfile(const QString& name)
{
    HostProfile* profile = findProfile(name);
    if (profile)
        makeActive(profile, false);
    return profile != nullptr;
}

void HostPluginsManager::setProfiles(std::vector<ProfileChoice> choices, const QString& active)
{
    adoptProfiles(std::move(choices), active);
    save();
}

void HostPluginsManager::adoptProfiles(std::vector<ProfileChoice> choices, const QString& active)
{
    const auto isDefault = [](const ProfileChoice& each) { return each.name == HostProfile::defaultName(); };
    if (std::none_of(choices.begin(), choices.end(), isDefault))
        choices.insert(choices.begin(), ProfileFile::shipped().profiles.front());
    auto former = std::move(m_profiles);
    m_profiles.clear();
    for (ProfileChoice& choice : choices) {
        const auto same = [&choice](const auto& each) { return each && each->name() == choice.name; };
        const auto known = std::find_if(former.begin(), former.end(), same);
        if (known == former.end()) {
            m_profiles.push_back(std::make_unique<HostProfile>(std::move(choice)));
            continue;
        }
        if (!(*known)->isDefault())
            (*known)->setChoice(std::move(choice));
        m_profiles.push_back(std::move(*known));
    }
    for (auto& gone : former) {
        if (gone)
            m_retired.push_back(std::move(gone));
    }
    fillSettings();
    HostProfile* wanted = findProfile(active);
    m_active = wanted ? wanted : findProfile(HostProfile::defaultName());
    m_rememberedActive = m_active->name();
    if (!m_extensions.empty())
        m_switch.request(); // they show the list and are driven by the choices
    emit profilesChanged();
    emit activeProfileChanged();
}

void HostPluginsManager::fillSettings()
{
    for (const auto& profile : m_profiles) {
        QList<SpxExtension*> controlled;
        for (const ManagedExtension& extension : m_extensions) {
            if (controls(*profile, extension))
                controlled += extension.extension();
        }
        profile->setting().setControlledExtensions(controlled);
    }
}

bool HostPluginsManager::controls(const HostProfile& profile, const ManagedExtension& extension) const
{
    const ProfileChoice& choice = profile.choice();
    return extension.isLoaded() &&
           (extension.isEditor() ? choice.editors : choice.tools).contains(extension.name());
}

void HostPluginsManager::applyProfile()
{
    deactivateAll();
    for (ManagedExtension& extension : m_extensions) {
        if (controls(*m_active, extension))
            extension.activate();
    }
    m_retired.clear();
    m_services.tellSelectionAgain();
    emit profileApplied();
}

void HostPluginsManager::deactivateAll()
{
    std::for_each(m_extensions.rbegin(), m_extensions.rend(),
                  [](ManagedExtension& each) { each.deactivate(); });
}

std::vector<ProfileChoice> HostPluginsManager::choices() const
{
    std::vector<ProfileChoice> choices;
    for (const auto& profile : m_profiles)
        choices.push_back(profile->choice());
    return choices;
}

void HostPluginsManager::save()
{
    const QString problem = m_file.write({choices(), m_rememberedActive});
    if (!problem.isEmpty())
        emit failed(problem);
}

} // namespace scopix
