// SPDX-License-Identifier: MIT
#pragma once

#include "structure/StructureCommand.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace scopix
{

/// Changes of a scene's structure that are being thought out, without touching the scene: the children of a
/// group are told as the changes so far would leave them. GUI thread only.
class StructurePlan
{
public:
    using Children = std::vector<SoNode*>;

    const Children& childrenOf(const SoGroup& group) const;
    /// Of the first place where the child stands, or -1.
    int findChild(const SoGroup& group, const SoNode* child) const;

    void insert(SoGroup& group, int index, SoNode* node);
    void append(SoGroup& group, SoNode* node);
    void remove(SoGroup& group, int index);
    void replace(SoGroup& group, int index, SoNode* node);
    void rename(SoNode& node, SbName name);

    bool isEmpty() const { return m_changes.empty(); }
    /// What was planned, as a command; the plan is of no more use.
    std::unique_ptr<SpxCommand> takeCommand();

private:
    Children& copyOf(SoGroup& group);

    std::unordered_map<const SoGroup*, Children> m_children; // of the groups that change
    std::vector<StructureChange> m_changes;
};

} // namespace scopix
