// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <unordered_map>
#include <vector>

namespace scopix
{

/// A copy of a scene, and of branches that no longer stand in it, in which the copy of each node can be
/// found. The scene is a holder's first child.
class SceneCopy
{
public:
    SceneCopy(SoNode* root, const std::vector<SoNode*>& removed);

    /// Null where the scene could not be copied.
    SoNode* getRoot() const;
    /// Null for a node that is not part of what was copied.
    SoNode* copyOf(const SoNode* node) const;
    void setChildren(const SoNode& group, const std::vector<SoNode*>& children);
    /// What the field follows; null: nothing. False where it then follows nothing.
    bool setSource(const SoField& field, const SoField* source);
    /// The same node-by-node as the value, with references to the copies.
    void setField(const SoField& field, const SoField& value);

private:
    SoField* copyOf(const SoField& field) const;

    SoRef<SoNode> m_holder;
    std::unordered_map<const SoNode*, SoRef<SoNode>> m_copies; // which may stand nowhere for a while
};

} // namespace scopix
