// The scene that the world benchmarks share: separators, each with a transform and a cube.
#pragma once

#include <xsg/nodes/SoCube.h>
#include <xsg/nodes/SoPerspectiveCamera.h>
#include <xsg/nodes/SoSeparator.h>
#include <xsg/nodes/SoTransform.h>

#include <cmath>

inline SoRef<SoSeparator> makeWorld(int separators)
{
    SoRef<SoSeparator> root(new SoSeparator);
    const int side = static_cast<int>(std::ceil(std::sqrt(separators)));
    for (int i = 0; i < separators; ++i) {
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(3.0F * static_cast<float>(i % side),
                                        3.0F * static_cast<float>(i / side), 0);
        group->addChild(transform);
        group->addChild(new SoCube);
        root->addChild(group);
    }
    return root;
}

inline SoTransform& lastTransform(SoSeparator& world)
{
    auto* group = static_cast<SoSeparator*>(world.getChild(world.getNumChildren() - 1));
    return *static_cast<SoTransform*>(group->getChild(0));
}
