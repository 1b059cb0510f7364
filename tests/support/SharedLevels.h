// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

/// A group that holds a shared group twice, and so on: 2 to the power of `levels` cubes with a few nodes.
/// `apart`: each in a place of its own, in a block; else all in one place.
template <class Group = SoSeparator>
SoRef<SoSeparator> makeSharedLevels(int levels, bool apart)
{
    SoRef<SoGroup> below(new SoSeparator);
    below->addChild(new SoCube);
    for (int level = 0; level < levels; ++level) {
        const SoRef<SoGroup> above(new Group);
        above->addChild(below.get());
        if (apart) {
            auto* transform = new SoTransform;
            SbVec3f step;
            step[level % 3] = 3.0F * static_cast<float>(1 << (level / 3));
            transform->translation.setValue(step);
            above->addChild(transform);
        }
        above->addChild(below.get());
        below = above;
    }
    SoRef<SoSeparator> root(new SoSeparator);
    root->addChild(below.get());
    return root;
}
