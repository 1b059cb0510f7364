// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>

/// The way from a root down to a node: each node is a child of the one before. Keeps a reference to each.
class SoPath
{
public:
    void append(SoNode* node) { m_nodes.emplace_back(node); }
    int getLength() const { return static_cast<int>(m_nodes.size()); }
    bool isEmpty() const { return m_nodes.empty(); }
    /// Null out of range.
    SoNode* getNode(int index) const
    {
        return index < 0 || index >= getLength() ? nullptr : m_nodes[static_cast<std::size_t>(index)].get();
    }
    SoNode* getHead() const { return getNode(0); }
    SoNode* getTail() const { return getNode(getLength() - 1); }
    bool contains(const SoNode* node) const
    {
        for (const auto& each : m_nodes) {
            if (each.get() == node)
                return true;
        }
        return false;
    }

private:
    std::vector<SoRef<SoNode>> m_nodes;
};
