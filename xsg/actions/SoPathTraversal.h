// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoPath.h>
#include <xsg/actions/SoTraversal.h>

#include <cstdint>

/// Traverses one path of a scene and what sets state along it: separators beside the path are skipped, so
/// that it is cheap however large the scene is. Keeps no node alive, and reaches nothing once the path is
/// broken. A derived class asks isEnd() at each node.
class XSG_API SoPathTraversal : protected SoTraversal
{
public:
    /// The numbers of a path's nodes, from its root on.
    using NodeIds = std::vector<std::uint64_t>;
    static NodeIds idsOf(const SoPath& path);

protected:
    SoPathTraversal() = default;
    explicit SoPathTraversal(NodeIds path);

    /// To be called before a walk along another path.
    void follow(NodeIds path);

    /// Whether the node that is visited, or the group that is wanted or entered, is the path's end.
    bool isEnd(const SoNode* node) const;
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;

private:
    bool isOnPath(const SoNode* node) const;

    NodeIds m_path;
    std::size_t m_reached = 0; // of the path, the groups that are open
};
