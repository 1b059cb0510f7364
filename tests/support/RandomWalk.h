// SPDX-License-Identifier: MIT
// What tests that walk at random share: their length and way are taken from the environment
// (SCOPIX_WALK_STEPS, SCOPIX_WALK_SEED).
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <cstdlib>

inline int fromEnvironment(const char* name, int otherwise)
{
    const char* text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}

/// A place in the scene, nearer to the root more often than not; `random(n)` is a number from 0 to below n.
template <class Random>
SoPath randomPath(SoNode* root, Random random)
{
    SoPath path;
    path.append(root);
    while (const SoGroup* group = path.getTail()->asGroup()) {
        if (group->getNumChildren() == 0 || random(4) == 0)
            break;
        path.append(group->getChild(random(group->getNumChildren())));
    }
    return path;
}
