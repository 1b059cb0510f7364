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

QSet<QString> asSet(const QStringList& names)
{
    return {names.begin(), names.end()};
}

} // namespace

HostProfile::HostProfile(ProfileChoice choice)
    : SpxProfile(profileName(choice))
{
    setChoice(std::move(choice));
}

void HostProfile::setChoice(ProfileChoice choice)
{
    setName(profileName(choice));
    m_choice = std::move(choice);
    m_editors = asSet(m_choice.editors.names);
    m_tools = asSet(m_choice.tools.names);
}

bool HostProfile::controls(const QString& name, bool isEditor) const
{
    return isEditor ? m_choice.editors.all || m_editors.contains(name)
                    : m_choice.tools.all || m_tools.contains(name);
}

} // namespace scopix
