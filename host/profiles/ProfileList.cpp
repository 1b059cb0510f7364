// SPDX-License-Identifier: MIT
#include "profiles/ProfileList.h"

#include "profiles/ProfileMerge.h"

#include <algorithm>
#include <map>

namespace scopix
{

namespace
{

void addDefault(std::vector<ProfileChoice>& choices)
{
    const auto isDefault = [](const ProfileChoice& each) { return each.name == HostProfile::defaultName(); };
    if (std::none_of(choices.begin(), choices.end(), isDefault))
        choices.insert(choices.begin(), ProfileFile::shipped().profiles.front());
}

} // namespace

ProfileList::ProfileList(ProfileFile file)
    : m_file(std::move(file))
{
    adopt({}, HostProfile::defaultName());
}

ProfileList::~ProfileList() = default;

void ProfileList::read()
{
    QString error;
    ProfileSettings settings = m_file.read(error);
    m_inFile = settings.profiles;
    ProfileFile::offerNew(settings);
    adopt(std::move(settings.profiles), settings.active);
    if (!error.isEmpty())
        emit failed(error);
}

HostProfile* ProfileList::findProfile(const QString& name) const
{
    return m_byName.value(name);
}

void ProfileList::setActiveProfile(const SpxProfile* profile)
{
    const auto is = [profile](const auto& each) { return each.get() == profile; };
    const auto known = std::find_if(m_profiles.begin(), m_profiles.end(), is);
    if (known != m_profiles.end())
        makeActive(known->get(), true);
}

bool ProfileList::useProfile(const QString& name)
{
    HostProfile* profile = findProfile(name);
    if (profile)
        makeActive(profile, false);
    return profile != nullptr;
}

void ProfileList::makeActive(HostProfile* profile, bool remember)
{
    const bool isAnother = m_active != profile;
    m_active = profile;
    if (remember && m_rememberedActive != profile->name())
        rememberActive();
    if (isAnother)
        emit activeChanged();
}

// Another session may have removed the profile that is chosen here: then it is wanted again.
void ProfileList::rememberActive()
{
    const ProfileChoice chosen = m_active->choice();
    const std::vector<ProfileChoice> before = choices();
    ProfileSettings settings{before, {}};
    m_rememberedActive = chosen.name;
    const QString problem = write(settings, before, [&](ProfileSettings& present) {
        const auto isChosen = [&](const ProfileChoice& each) { return each.name == chosen.name; };
        if (std::none_of(present.profiles.begin(), present.profiles.end(), isChosen))
            present.profiles.push_back(chosen);
        present.active = chosen.name;
    });
    if (!(settings.profiles == before)) {
        replaceProfiles(std::move(settings.profiles));
        fillSettings();
        emit changed();
    }
    if (!problem.isEmpty())
        emit failed(problem);
}

void ProfileList::setProfiles(std::vector<ProfileChoice> choices, const QString& active)
{
    setProfiles(std::move(choices), active, this->choices());
}

void ProfileList::setProfiles(std::vector<ProfileChoice> wanted, const QString& active,
                              const std::vector<ProfileChoice>& base)
{
    ProfileSettings settings{std::move(wanted), {}};
    const QString problem = write(settings, base, [&](ProfileSettings& present) {
        if (present.active.isEmpty() || active != m_rememberedActive)
            present.active = active;
    });
    adopt(std::move(settings.profiles), active);
    if (!problem.isEmpty())
        emit failed(problem);
}

// Of profiles that this session started from, those that the file has held, as it held them: what could not
// be written is still to be added or changed.
std::vector<ProfileChoice> ProfileList::inFile(const std::vector<ProfileChoice>& base) const
{
    std::vector<ProfileChoice> known;
    for (const ProfileChoice& each : m_inFile) {
        const auto isSame = [&](const ProfileChoice& other) { return other.name == each.name; };
        if (std::any_of(base.begin(), base.end(), isSame))
            known.push_back(each);
    }
    return known;
}

// Merges the profiles of `settings`, which this session has made of `base`, with those of the file, and
// writes them.
QString ProfileList::write(ProfileSettings& settings, const std::vector<ProfileChoice>& base,
                           const std::function<void(ProfileSettings&)>& act)
{
    const std::vector<ProfileChoice> wanted = settings.profiles;
    QString problem = m_file.change(settings, [&](ProfileSettings& present) {
        present.profiles = mergeProfiles(inFile(base), wanted, present.profiles);
        addDefault(present.profiles);
        act(present);
    });
    if (problem.isEmpty())
        m_inFile = settings.profiles;
    return problem;
}

std::vector<ProfileChoice> ProfileList::choices() const
{
    std::vector<ProfileChoice> all;
    for (const auto& profile : m_profiles)
        all.push_back(profile->choice());
    return all;
}

void ProfileList::adopt(std::vector<ProfileChoice> choices, const QString& active)
{
    addDefault(choices);
    replaceProfiles(std::move(choices));
    fillSettings();
    HostProfile* wanted = findProfile(active);
    m_active = wanted ? wanted : findProfile(HostProfile::defaultName());
    m_rememberedActive = m_active->name();
    emit changed();
    emit activeChanged();
}

void ProfileList::replaceProfiles(std::vector<ProfileChoice> choices)
{
    std::map<QString, std::unique_ptr<HostProfile>> former;
    for (auto& profile : m_profiles) {
        const QString name = profile->name();
        former[name] = std::move(profile);
    }
    m_profiles.clear();
    m_byName.clear();
    for (ProfileChoice& choice : choices) {
        const QString name = choice.name;
        std::unique_ptr<HostProfile> profile = std::move(former[name]);
        if (!profile)
            profile = std::make_unique<HostProfile>(std::move(choice));
        else if (!profile->isDefault())
            profile->setChoice(std::move(choice));
        m_byName.insert(name, profile.get());
        m_profiles.push_back(std::move(profile));
    }
    for (auto& [name, profile] : former) {
        if (profile)
            m_retired.push_back(std::move(profile));
    }
}

void ProfileList::setExtensions(std::vector<ProfiledExtension> extensions)
{
    m_extensions = std::move(extensions);
    fillSettings();
}

void ProfileList::fillSettings()
{
    for (const auto& profile : m_profiles) {
        QList<SpxExtension*> controlled;
        for (const ProfiledExtension& each : m_extensions) {
            if (each.isLoaded && profile->controls(each.name, each.isEditor))
                controlled += each.extension;
        }
        profile->setting().setControlledExtensions(controlled);
    }
}

} // namespace scopix
