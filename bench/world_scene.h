// SPDX-License-Identifier: MIT
// The scene that the world benchmarks share: separators, each with a transform and a cube.
#pragma once

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
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

/// Corners of a cube that no other place has, and its triangles.
struct OwnCube {
    explicit OwnCube(int place)
    {
        for (int i = 0; i < 8; ++i) {
            for (int axis = 0; axis < 3; ++axis)
                corners[i][axis] = ((i >> axis) & 1) != 0 ? 1.0F : -1.0F;
            corners[i][0] += 1e-6F * static_cast<float>(place);
        }
    }
    SbVec3f corners[8];
    static constexpr std::int32_t Index[36] = {0, 2, 3, 0, 3, 1, 4, 5, 7, 4, 7, 6, 0, 1, 5, 0, 5, 4,
                                               2, 6, 7, 2, 7, 3, 0, 4, 6, 0, 6, 2, 1, 3, 7, 1, 7, 5};
};

inline SbColor ownColor(int place)
{
    return {static_cast<float>(place % 101) / 100, static_cast<float>(place % 211) / 210, 0.5F};
}

/// The same world of cubes that share nothing: each has its own corners, triangles and material.
inline SoRef<SoSeparator> makeWorldOfOwnCubes(int separators)
{
    SoRef<SoSeparator> root(new SoSeparator);
    const int side = worldSide(separators);
    for (int i = 0; i < separators; ++i) {
        const OwnCube cube(i);
        auto* group = new SoSeparator;
        auto* transform = new SoTransform;
        transform->translation.setValue(worldPlace(i, side));
        auto* material = new SoMaterial;
        material->diffuseColor.setValue(ownColor(i));
        auto* points = new SoPoints;
        points->points.setValues(0, 8, cube.corners);
        auto* faces = new SoIndexedTriangleSet;
        faces->index.setValues(0, 36, OwnCube::Index);
        for (SoNode* node : std::initializer_list<SoNode*>{transform, material, points, faces})
            group->addChild(node);
        root->addChild(group);
    }
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
