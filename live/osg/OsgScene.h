// SPDX-License-Identifier: MIT
#pragma once

#include "OsgObjects.h"
#include "OsgViewers.h"

#include <osg/Group>

#include <functional>
#include <map>

namespace scopix::live
{

/// The nodes of the program as a tree from its cameras down, and changes of it. What this library adds to
/// draw a mark is no part of the tree. Between frames only.
class OsgScene
{
public:
    OsgScene(OsgObjects& objects, OsgViewers& viewers);

    std::vector<NodeInfo> roots();
    std::optional<NodeInfo> node(NodeId id);
    std::vector<NodeInfo> children(NodeId id, std::uint32_t first, std::uint32_t count);
    std::vector<std::vector<NodeId>> pathsTo(NodeId id, std::uint32_t limit);
    std::vector<std::vector<NodeId>> find(const std::string& query, std::uint32_t limit);

    std::vector<std::string> addableTypes(NodeId parent);
    StructureResult add(NodeId parent, std::uint32_t index, const std::string& type);
    StructureResult remove(NodeId parent, std::uint32_t index);
    StructureResult insert(NodeId parent, std::uint32_t index, NodeId node);
    /// `finish` is called for each node and its copy, before that is drawn.
    using Finish = std::function<void(osg::Node& node, osg::Node& copy)>;
    StructureResult copy(NodeId parent, std::uint32_t index, NodeId node, const Finish& finish);

    std::vector<osg::Node*> childrenOf(osg::Object& object) const;

private:
    /// What a group keeps for a child beside it, as a range of distances.
    struct ChildState {
        bool shown = true;
        float least = 0;
        float greatest = 1e10F;
        double time = 1;
    };
    class KeptForChildren;

    NodeInfo infoOf(osg::Object& object);
    StructureResult insertNode(osg::Group& group, std::uint32_t index, osg::Node& node,
                               const ChildState* state);

    OsgObjects& m_objects;
    OsgViewers& m_viewers;
    std::map<std::pair<NodeId, NodeId>, ChildState> m_removed;
};

/// A node that only this library knows.
bool isOwnNode(const osg::Node& node);

} // namespace scopix::live
