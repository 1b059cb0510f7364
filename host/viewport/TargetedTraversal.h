// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>

#include <unordered_set>

namespace scopix
{

/// Traverses only the paths to some nodes of a scene and what sets state along them: separators beside the
/// paths are skipped. Cheap however large the scene is. A derived class defines what to do at the nodes.
class TargetedTraversal : protected SoTraversal
{
protected:
    explicit TargetedTraversal(const std::vector<const SoNode*>& nodes);

    bool leadsThere(const SoGroup* group) const { return m_above.count(group) != 0; }
    bool wantsGroup(SoGroup* group) override { return !group->isStateScope() || leadsThere(group); }

private:
    std::unordered_set<const SoGroup*> m_above; // the nodes, in whatever scene
};

} // namespace scopix
