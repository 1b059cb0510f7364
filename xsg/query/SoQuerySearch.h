// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/query/SoQuery.h>

#include <unordered_set>
#include <vector>

namespace xsg
{
class NodeMatcher;
}

/// Looks for a query below a root, in the scene's order, a piece at a time, so that a caller stays responsive
/// in a scene of any size. Each node is looked at once, however many places it stands in. Keeps references to
/// what was found and to the groups on the way; where children come or go between two pieces, some may be
/// missed: begin again then.
class XSG_API SoQuerySearch
{
public:
    /// Finds nothing.
    SoQuerySearch();
    /// A null root has nothing in it.
    SoQuerySearch(const SoQuery& query, SoNode* root);
    SoQuerySearch(SoQuerySearch&&) noexcept;
    SoQuerySearch& operator=(SoQuerySearch&&) noexcept;
    ~SoQuerySearch();

    /// Looks at up to `nodes` further nodes. False when all have been looked at.
    bool advance(int nodes);
    bool isFinished() const { return m_begun && m_open.empty(); }

    const std::vector<SoRef<SoNode>>& getFound() const { return m_found; }
    bool isFound(const SoNode* node) const { return m_isFound.count(node) > 0; }

private:
    struct OpenGroup {
        SoRef<SoGroup> group;
        int child;
    };
    void visit(SoNode* node);
    SoNode* takeNext();

    std::unique_ptr<xsg::NodeMatcher> m_matcher;
    SoRef<SoNode> m_root;
    bool m_begun = true;
    std::vector<OpenGroup> m_open;
    std::vector<SoRef<SoNode>> m_found;
    std::unordered_set<const SoNode*> m_isFound;
    std::unordered_set<std::uint64_t> m_seen; // of the nodes with several parents, by their ids
};
