// SPDX-License-Identifier: MIT
#include "profiles/ProfileMerge.h"

#include <algorithm>

namespace scopix
{

namespace
{

using Profiles = std::vector<ProfileChoice>;

const ProfileChoice* find(const Profiles& profiles, const QString& name)
{
    const auto found = std::find_if(profiles.begin(), profiles.end(),
                                    [&](const ProfileChoice& each) { return each.name == name; });
    return found == profiles.end() ? nullptr : &*found;
}

// The profile as they have it, with what was changed here.
ProfileChoice withMine(const ProfileChoice& base, const ProfileChoice& mine, ProfileChoice theirs)
{
    if (!(mine.editors == base.editors))
        theirs.editors = mine.editors;
    if (!(mine.tools == base.tools))
        theirs.tools = mine.tools;
    return theirs;
}

// Among those that either has, too.
QString freeName(const QString& name, const Profiles& mine, const Profiles& theirs, const Profiles& merged)
{
    QString free = name;
    for (int number = 2; find(mine, free) || find(theirs, free) || find(merged, free); ++number)
        free = QStringLiteral("%1 %2").arg(name, QString::number(number));
    return free;
}

} // namespace

Profiles mergeProfiles(const Profiles& base, const Profiles& mine, const Profiles& theirs)
{
    Profiles merged;
    for (ProfileChoice each : mine) {
        const ProfileChoice* before = find(base, each.name);
        const ProfileChoice* other = find(theirs, each.name);
        if (before && other) {
            merged.push_back(withMine(*before, each, *other));
            continue;
        }
        if (before && *before == each)
            continue;                     // removed there, and not changed here
        if (other && !(*other == each)) { // both have added one
            merged.push_back(*other);
            each.name = freeName(each.name, mine, theirs, merged);
        }
        merged.push_back(std::move(each));
    }
    for (const ProfileChoice& each : theirs) {
        const ProfileChoice* before = find(base, each.name);
        const bool isRemovedHere = before && *before == each;
        if (!find(mine, each.name) && !isRemovedHere)
            merged.push_back(each);
    }
    return merged;
}

} // namespace scopix
