// SPDX-License-Identifier: MIT
#pragma once

#include "profiles/HostProfile.h"

#include <vector>

namespace scopix
{

/// What becomes of profiles that two sessions have changed: both started from `base`, this session wants
/// `mine`, and the other has written `theirs`. Nothing that either has added or changed is lost: a profile
/// that one has removed and the other changed stays; where both changed the same choice, mine counts; and
/// where both added a profile of the same name, mine gets another one. Mine come first, in their order.
std::vector<ProfileChoice> mergeProfiles(const std::vector<ProfileChoice>& base,
                                         const std::vector<ProfileChoice>& mine,
                                         const std::vector<ProfileChoice>& theirs);

} // namespace scopix
