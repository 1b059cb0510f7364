// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoGeometry.h>

#include <cstdint>
#include <map>
#include <vector>

class SoMorph;
class SoNode;
class SoNormals;
class SoPoints;
class SoShape;
class SoSkin;
class SoState;

namespace scopix
{

/// What bends the points of a shape, in the order in which other programs know it: morph targets first, then
/// a skin, one of each at most.
struct BentPoints {
    const SoPoints* points = nullptr; // as they are without
    const SoNormals* normals = nullptr;
    const SoMorph* morph = nullptr;
    const SoSkin* skin = nullptr;
    bool isKnown = true; // false: bent in another way
};

/// Follows a walk through a scene and knows what has bent the points that the state has.
class BentPointsWalk
{
public:
    /// After each node that is no group, and each time that a group is entered or left.
    void note(const SoState& state);
    /// After this node, before note().
    void noteNode(const SoNode& node, const SoState& state);
    /// Null for points that are as they are in the scene.
    const BentPoints* find(const SoState& state) const;

private:
    const SoPoints* m_points = nullptr;
    const SoNormals* m_normals = nullptr;
    std::map<const SoPoints*, BentPoints> m_bent; // by the points that came of it
};

/// With the points as they are without.
SoState withoutBending(const SoState& state, const BentPoints& bent);
/// The points of a shape's geometry by their places in the list of points of the state, which they come from.
std::vector<std::uint32_t> placesOfCorners(const SoShape& shape, const SoState& state);

} // namespace scopix
