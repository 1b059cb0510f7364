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

HostProfile::HostProfile(ProfileChoice choice)
    : SpxProfile(profileName(choice))
    , m_choice(std::move(choice))
{
}

void HostProfile::setChoice(ProfileChoice choice)
{
    setName(profileName(choice));
    m_choice = std::move(choice);
}

} // namespace scopix
