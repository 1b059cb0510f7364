// SPDX-License-Identifier: MIT
#pragma once

#include "OsgClasses.h"
#include "OsgCounters.h"
#include "OsgEdits.h"
#include "OsgMark.h"
#include "OsgNotices.h"
#include "OsgPicture.h"
#include "OsgScene.h"
#include "OsgViewers.h"
#include "OsgViewing.h"
#include "OsgWatch.h"

namespace scopix::live
{

/// Gives an inspector the scenes of all viewers of a program on OpenSceneGraph.
class OsgAdapter : public Adapter
{
public:
    /// To be called between two frames, before the server.
    void betweenFrames(osgViewer::ViewerBase& viewer);

    std::string sceneGraphName() const override;
    Abilities abilities() const override;

    std::vector<NodeInfo> roots() override;
    std::optional<NodeInfo> node(NodeId node) override;
    std::vector<NodeInfo> children(NodeId node, std::uint32_t first, std::uint32_t count) override;
    std::vector<std::vector<NodeId>> pathsTo(NodeId node, std::uint32_t limit) override;
    std::vector<PropertyInfo> properties(NodeId node) override;
    std::optional<Value> value(NodeId node, const std::string& property) override;
    WriteResult write(NodeId node, const std::string& property, const Value& value) override;

    std::vector<std::string> addableTypes(NodeId parent) override;
    StructureResult add(NodeId parent, std::uint32_t index, const std::string& type) override;
    StructureResult remove(NodeId parent, std::uint32_t index) override;
    StructureResult insert(NodeId parent, std::uint32_t index, NodeId node) override;
    StructureResult copy(NodeId parent, std::uint32_t index, NodeId node) override;
    void forget(NodeId node) override;

    void watch(NodeId node, bool values) override;
    void unwatch(NodeId node) override;
    AdapterChanges takeChanges() override;

    PickResult pick(double x, double y) override;
    std::optional<Value> box(NodeId node) override;
    void askPicture(std::uint32_t width, std::uint32_t height) override;
    std::optional<Picture> takePicture() override;
    void mark(NodeId node) override;
    bool lookFrom(const Camera& camera) override;
    std::optional<Camera> camera() override;
    std::vector<std::vector<NodeId>> find(const std::string& query, std::uint32_t limit) override;

    std::vector<CounterInfo> counters() override;
    std::vector<double> counterValues() override;
    FrameTable takeFrames() override;
    std::vector<Notice> takeNotices() override;
    void attached(bool isAttached) override;

private:
    OsgObjects m_objects;
    OsgClasses m_classes;
    OsgViewers m_viewers;
    OsgScene m_scene{m_objects, m_viewers};
    OsgEdits m_edits{m_objects, m_classes, m_viewers};
    OsgWatch m_watch{m_objects, m_classes, m_viewers, m_scene};
    OsgViewing m_viewing{m_objects, m_viewers};
    OsgMark m_mark{m_objects, m_viewers};
    OsgPicture m_picture{m_viewers, m_viewing};
    OsgCounters m_counters{m_viewers};
    OsgNotices m_notices;
};

} // namespace scopix::live
