// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveNode.h"

#include <functional>
#include <vector>

namespace scopix
{

/// Asks the program for the children and properties of a LiveScene's nodes, many children a piece at a time,
/// and makes nodes and fields of the answers. What was edited meanwhile stays. Part of LiveScene.
class LiveFetching
{
public:
    explicit LiveFetching(LiveScene& scene);

    /// Once; the program tells of changes from then on.
    void fetchChildren(LiveNode& node);
    /// What it has now, where they are here already.
    void fetchChildrenAgain(LiveNode& node);
    /// `then`: as soon as they are here.
    void fetchProperties(LiveNode& node, const std::function<void()>& then);

private:
    using NodeRef = SoRef<LiveNode>;

    bool isOver() const;
    void fetchPiece(const NodeRef& node, std::uint32_t first, bool isAgain);
    void pieceCame(const NodeRef& node, std::uint32_t first, bool isAgain, std::uint32_t asked,
                   const std::vector<live::NodeInfo>& piece);
    void fetchEditedAgain(LiveNode& node);
    void rootsCame(const std::vector<live::NodeInfo>& roots);
    void fetched(LiveNode& node);
    void setChildren(LiveNode& node);
    void insert(LiveNode& parent, SoNode& child, int index);
    void propertiesCame(const NodeRef& node, const std::vector<live::PropertyInfo>& properties);
    void fetchObjects(const NodeRef& node);
    void objectsCame(const NodeRef& node, const std::vector<live::NodeId>& ids);
    void propertiesFetched(LiveNode& node);

    LiveScene& m_scene;
};

} // namespace scopix
