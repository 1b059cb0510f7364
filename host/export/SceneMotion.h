// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <vector>

class SoAnimation;
class SoNode;
class SoTransform;

namespace scopix
{

/// What moves in a scene, hidden parts too. Refers to its nodes, which must outlive it.
class SceneMotion
{
public:
    explicit SceneMotion(SoNode& root);

    const std::vector<SoAnimation*>& getClips() const { return m_clips; }
    /// Whether a clip moves this transform, or a skin has it for a bone.
    bool isMover(const SoNode& node) const { return m_movers.count(&node) > 0; }

private:
    void note(SoNode& node);

    std::vector<SoAnimation*> m_clips;
    std::set<const SoNode*> m_movers;
};

/// Whether it moves, turns and scales, one after the other, and no more, as other programs' nodes do.
bool isPlain(const SoTransform& transform);

} // namespace scopix
