// SPDX-License-Identifier: MIT
// The scene that the world benchmarks share: separators, each with a transform and a cube.
#pragma once

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <cmath>
#include <vector>

inline int worldSide(int separators)
{
    return static_cast<int>(std::ceil(std::sqrt(separators)));
}

inline SbVec3f worldPlace(int i, int side)
{
    return {3.0F * static_cast<float>(i % side), 3.0F * static_cast<float>(i / side), 0};
}

inline SoSeparator* makeWorldPart(int i, int side)
{
    auto* group = new SoSeparator;
    auto* transform = new SoTransform;
    transform->translation.setValue(worldPlace(i, side));
    group->addChild(transform);
    group->addChild(new SoCube);
    return group;
}

inline SoRef<SoSeparator> makeWorld(int separators)
{
    SoRef<SoSeparator> root(new SoSeparator);
    const int side = worldSide(separators);
    for (int i = 0; i < separators; ++i)
        root->addChild(makeWorldPart(i, side));
    return root;
}

inline SoTransform& lastTransform(SoSeparator& world)
{
    auto* group = static_cast<SoSeparator*>(world.getChild(world.getNumChildren() - 1));
    return *static_cast<SoTransform*>(group->getChild(0));
}

/// As if nobody had asked for a box before.
inline void forgetBoxes(SoSeparator& world)
{
    for (SoNode* child : world.getChildren())
        child->asGroup()->setExtension(nullptr);
    world.setExtension(nullptr);
}

/// Whether a picture is more than its background.
inline bool hasPicture(const std::vector<unsigned char>& rgba)
{
    return std::any_of(rgba.begin() + 4, rgba.end(), [&](const unsigned char& c) {
        return c != rgba[static_cast<std::size_t>(&c - rgba.data()) % 4];
    });
}
