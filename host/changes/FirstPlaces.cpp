// SPDX-License-Identifier: MIT
#include "changes/FirstPlaces.h"

#include <xsg/paths/NodeLabel.h>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr std::size_t MostParents = 256; // of a node, that are looked at
constexpr int MostSearches = 8;          // in a group, before its children are numbered

std::size_t countedParents(const SoNode& node)
{
    return std::min(node.getParents().size(), MostParents);
}

} // namespace

void FirstPlaces::setRoot(const SoNode* root)
{
    m_root = root;
    clear();
}

void FirstPlaces::clear()
{
    m_places.clear();
    m_children.clear();
}

// Upwards without recursion, since scenes may be nested deeper than the stack is.
const FirstPlaces::Place& FirstPlaces::placeOf(const SoNode& node)
{
    std::vector<const SoNode*> pending{&node};
    while (!pending.empty()) {
        const SoNode& next = *pending.back();
        const std::size_t before = pending.size();
        if (m_places.count(&next) == 0 && &next != m_root) {
            for (std::size_t i = 0; i < countedParents(next); ++i) {
                if (m_places.count(next.getParents()[i]) == 0)
                    pending.push_back(next.getParents()[i]);
            }
        }
        if (pending.size() > before)
            continue;
        pending.pop_back();
        if (m_places.count(&next) == 0)
            m_places.emplace(&next, choose(next));
    }
    return m_places.at(&node);
}

FirstPlaces::Place FirstPlaces::choose(const SoNode& node)
{
    Place best;
    best.isBelow = &node == m_root;
    if (best.isBelow)
        return best;
    for (std::size_t i = 0; i < countedParents(node); ++i) {
        const SoGroup* parent = node.getParents()[i];
        const Place& above = m_places.at(parent);
        if (!above.isBelow || parent == best.parent)
            continue;
        Order order = above.order;
        order.push_back(positionIn(*parent, node));
        if (!best.isBelow || order < best.order)
            best = {true, parent, std::move(order)};
    }
    return best;
}

int FirstPlaces::positionIn(const SoGroup& group, const SoNode& child)
{
    Children& children = m_children[&group];
    if (++children.asked <= MostSearches)
        return group.findChild(&child);
    if (children.positions.empty()) {
        children.positions.reserve(group.getChildren().size());
        for (int i = 0; i < group.getNumChildren(); ++i)
            children.positions.emplace(group.getChild(i), i);
    }
    return children.positions.at(&child);
}

SoScenePath::Step FirstPlaces::stepOf(const SoGroup& group, int position)
{
    std::vector<int>& indices = m_children[&group].labelIndices;
    if (indices.empty()) {
        std::unordered_map<const char*, int> counts;
        for (const SoNode* child : group.getChildren())
            indices.push_back(counts[xsg::labelOf(*child).getString()]++);
    }
    const SbName label = xsg::labelOf(*group.getChild(position));
    return {label.getString(), indices.at(static_cast<std::size_t>(position))};
}

SoScenePath FirstPlaces::pathOf(const SoNode& node)
{
    std::vector<SoScenePath::Step> steps;
    for (const SoNode* each = &node; each != m_root && placeOf(*each).parent; each = placeOf(*each).parent)
        steps.push_back(stepOf(*placeOf(*each).parent, placeOf(*each).order.back()));
    SoScenePath path;
    std::for_each(steps.rbegin(), steps.rend(), [&](SoScenePath::Step& step) { path.append(step); });
    return path;
}

} // namespace scopix
