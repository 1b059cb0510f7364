// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <cstdint>
#include <unordered_set>

/// What of a scene is not seen at present, though the scene itself does not say so: nodes that are hidden,
/// each with all that is below it, and perhaps only what is below some nodes is seen. What remains stands
/// where it stood: a hidden group that is no separator still moves and colours what follows it. A light that
/// is hidden is off. Knows nodes by their numbers and keeps none alive. Belongs to the graph's thread.
class XSG_API SoHiding
{
public:
    void setHidden(const SoNode* node, bool on);
    bool isHidden(const SoNode* node) const { return m_hidden.count(node->getNodeId()) > 0; }
    /// Only these and what is below them is seen; none: all that is not hidden.
    void isolate(const std::vector<const SoNode*>& nodes);
    bool isIsolating() const { return !m_isolated.empty(); }
    bool isIsolated(const SoNode* node) const { return m_isolated.count(node->getNodeId()) > 0; }
    /// Nothing is hidden and nothing isolated; of what is hidden, nodes of these numbers stay so.
    void clear() { showAllBut({}); }
    void showAllBut(const std::unordered_set<std::uint64_t>& numbers);
    /// Just what the other one shows.
    void showLike(const SoHiding& other);
    bool isEmpty() const { return m_hidden.empty() && m_isolated.empty(); }
    bool hidesAny() const { return !m_hidden.empty(); }

    /// Another one after each change.
    std::uint64_t getVersion() const { return m_version; }

private:
    std::unordered_set<std::uint64_t> m_hidden;
    std::unordered_set<std::uint64_t> m_isolated;
    std::uint64_t m_version = 0;
};
