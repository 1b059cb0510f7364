// SPDX-License-Identifier: MIT
#include "structure/StructurePlan.h"

#include <algorithm>

namespace scopix
{

using Kind = StructureChange::Kind;

const StructurePlan::Children& StructurePlan::childrenOf(const SoGroup& group) const
{
    const auto changed = m_children.find(&group);
    return changed == m_children.end() ? group.getChildren() : changed->second;
}

int StructurePlan::findChild(const SoGroup& group, const SoNode* child) const
{
    const Children& children = childrenOf(group);
    const auto found = std::find(children.begin(), children.end(), child);
    return found == children.end() ? -1 : static_cast<int>(found - children.begin());
}

StructurePlan::Children& StructurePlan::copyOf(SoGroup& group)
{
    const auto [place, isNew] = m_children.try_emplace(&group);
    if (isNew)
        place->second = group.getChildren();
    return place->second;
}

void StructurePlan::insert(SoGroup& group, int index, SoNode* node)
{
    m_changes.push_back({Kind::Insert, &group, index, nullptr, node, {}, {}});
    Children& children = copyOf(group);
    children.insert(children.begin() + index, node);
}

void StructurePlan::append(SoGroup& group, SoNode* node)
{
    insert(group, static_cast<int>(childrenOf(group).size()), node);
}

void StructurePlan::remove(SoGroup& group, int index)
{
    Children& children = copyOf(group);
    m_changes.push_back(
        {Kind::Remove, &group, index, children[static_cast<std::size_t>(index)], nullptr, {}, {}});
    children.erase(children.begin() + index);
}

void StructurePlan::replace(SoGroup& group, int index, SoNode* node)
{
    SoNode*& child = copyOf(group)[static_cast<std::size_t>(index)];
    m_changes.push_back({Kind::Replace, &group, index, child, node, {}, {}});
    child = node;
}

void StructurePlan::rename(SoNode& node, SbName name)
{
    m_changes.push_back({Kind::Rename, &node, 0, nullptr, nullptr, node.getName(), name});
}

std::unique_ptr<SpxCommand> StructurePlan::takeCommand()
{
    return std::make_unique<StructureCommand>(std::move(m_changes));
}

} // namespace scopix
