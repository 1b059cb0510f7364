// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/SoScenePath.h>

#include <unordered_map>
#include <vector>

namespace scopix
{

/// Where nodes of a scene stand first, found by looking upwards from them, so that asking about some costs
/// nothing for the others. To be cleared whenever children or names have changed. GUI thread only.
class FirstPlaces
{
public:
    /// Positions among children, from the root downwards: compares as the scene is ordered.
    using Order = std::vector<int>;

    void setRoot(const SoNode* root);
    void clear();

    bool isBelowRoot(const SoNode& node) { return placeOf(node).isBelow; }
    /// Empty for the root and for what is not in the scene.
    const Order& orderOf(const SoNode& node) { return placeOf(node).order; }
    SoScenePath pathOf(const SoNode& node);
    /// What a path calls the child at this position.
    SoScenePath::Step stepOf(const SoGroup& group, int position);

private:
    struct Place {
        bool isBelow = false;
        const SoGroup* parent = nullptr;
        Order order;
    };
    struct Children {
        std::vector<int> labelIndices;
        std::unordered_map<const SoNode*, int> positions; // once it has been asked for some
        int asked = 0;
    };

    const Place& placeOf(const SoNode& node);
    Place choose(const SoNode& node);
    int positionIn(const SoGroup& group, const SoNode& child);

    const SoNode* m_root = nullptr;
    std::unordered_map<const SoNode*, Place> m_places;
    std::unordered_map<const SoGroup*, Children> m_children;
};

} // namespace scopix
