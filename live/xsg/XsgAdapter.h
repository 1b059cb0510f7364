// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>

#include <xsg/nodes/base/SoNode.h>

#include <functional>
#include <memory>

class SoCamera;
class SoRenderer;

namespace scopix::live
{

/// Makes scenes of xsg inspectable:
///
///     scopix::live::XsgAdapter adapter(root);
///     scopix::live::Server server(adapter);
///     while (draws) { draw(); server.betweenFrames(); }
///
/// Keeps the roots and the camera alive. What it is not told of it leaves out: without a camera the first one
/// in the scene is taken. In the scene's thread.
class SCOPIX_LIVE_API XsgAdapter : public Adapter
{
public:
    explicit XsgAdapter(SoNode* root);
    ~XsgAdapter() override;
    XsgAdapter(const XsgAdapter&) = delete;
    XsgAdapter& operator=(const XsgAdapter&) = delete;

    /// What the program shows, from the next frame on. The first root is the one that is drawn.
    void setRoots(const std::vector<SoNode*>& roots);
    void setCamera(SoCamera* camera);
    /// Width of the program's view divided by its height; 4 : 3 where it is not told.
    void setAspect(double aspect);
    /// Marks what is selected; it has to outlive the adapter, or be set to null.
    void setRenderer(SoRenderer* renderer);
    /// Gives the program's own picture, at most that wide and high. Without it the adapter draws one of its
    /// own, offscreen, which costs the program a frame.
    using PictureFunction = std::function<std::optional<Picture>(std::uint32_t width, std::uint32_t height)>;
    void setPictureFunction(PictureFunction function);

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
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace scopix::live
