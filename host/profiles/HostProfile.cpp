// SPDX-License-Identifier: MIT
#include "profiles/HostProfile.h"

namespace scopix
{

namespace
{

SbString profileName(const ProfileChoice& choice)
{
    return SbString(choice.name.toLatin1().constData());
}

} // namespace

bool ExtensionChoice::contains(const QString& name) const
{
    return all || names.contains(name) ||
           names.contains(name.section(QLatin1Char('/'), 0, 0) + QStringLiteral("/*"));
}

HostProfile::HostProfile(ProfileChoice choice)
    : SpxProfile(profileName(choice))
{
    setChoice(std::move(choice));
}

void HostProfile::setChoice(ProfileChoice choice)
{
    setName(profileName(choice));
    m_choice = std::move(choice);
}

bool HostProfile::controls(const QString& name, bool isEditor) const
{
    return isEditor ? m_choice.editors.contains(name) : m_choice.tools.contains(name);
}

} // namespace scopix
