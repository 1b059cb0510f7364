// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/files/NodeNotes.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/paths/SoScenePath.h>

#include <functional>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// Where each node of a scene stands first, in the order of a scene file. The scene must stay as it is while
/// this is used.
class XSG_API NodePlaces
{
public:
    /// `goOn` is called each few milliseconds; see WorkPieces.
    explicit NodePlaces(SoNode* root, const std::function<void(double)>& goOn = {});

    SoNode* getRoot() const { return m_nodes.front(); }
    /// Each node once.
    const std::vector<SoNode*>& getNodes() const { return m_nodes; }
    bool has(const SoNode& node) const { return m_places.find(node).isKnown; }
    /// Null for the root.
    SoGroup* getParent(const SoNode& node) const { return m_places.find(node).parent; }
    int getPosition(const SoNode& node) const { return m_places.find(node).position; }
    /// Of a place where the node stands.
    bool isFirst(const SoNode& node, const SoGroup* parent, int position) const;
    /// Of a node of the scene.
    SoScenePath pathOf(const SoNode& node);
    /// How many of the group's children before this one are called as it is.
    int labelIndexOf(const SoGroup& group, int position);

private:
    struct Place {
        SoGroup* parent = nullptr;
        int position = 0;
        bool isKnown = false;
    };
    std::vector<SoNode*> m_nodes;
    NodeNotes<Place> m_places;
    std::unordered_map<const SoGroup*, std::vector<int>> m_indices;
};

} // namespace xsg
