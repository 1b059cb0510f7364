// SPDX-License-Identifier: MIT
// A program to attach to, in this process: its frames are turns of the event loop.
#pragma once

#include <scopix/live/adapter/Adapter.h>
#include <scopix/live/server/Server.h>
#include <scopix/live/values/LivePacking.h>

#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <map>
#include <set>

namespace live = scopix::live;
using live::NodeId;
using live::PropertyInfo;
using live::Value;
using live::ValueKind;

inline Value number(double value)
{
    return live::packed(ValueKind::Double, value);
}

/// An invented scene: nodes with any properties. What has a least and a greatest number is clamped; what is
/// listed in `refused` is not taken.
class TestScene : public live::Adapter
{
public:
    struct Node {
        live::NodeInfo info;
        std::vector<NodeId> children;
        std::vector<PropertyInfo> properties;
        std::map<std::string, Value> values;
    };
    std::map<NodeId, Node> nodes;
    std::vector<NodeId> top;
    std::set<std::string> refused;
    std::string refusal = "It is not to its liking.";
    std::set<NodeId> fullGroups;
    bool tellsOfChildren = false; // also of those that we have edited
    std::vector<std::string> addable{"Comet", "Group", "Moon", "Planet"};
    live::Abilities offers{true, true, true, true, true, true, true};
    std::vector<NodeId> marked;
    std::set<NodeId> watched;
    std::vector<NodeId> forgotten;
    NodeId lastMade = 5000;
    live::FrameTable frames;
    int writes = 0;
    int childQuestions = 0;
    int valueQuestions = 0;
    std::uint32_t pictureWidth = 0;
    std::vector<NodeId> hit;
    live::AdapterChanges changes;
    std::vector<live::Notice> notices;
    live::Camera eye;
    NodeId answersWith = 0; // asked for the children of 0xC0FFEE: a node of this number, again and again

    Node& put(NodeId parent, NodeId id, const std::string& type, const std::string& name = {})
    {
        Node& node = nodes[id];
        node.info.id = id;
        node.info.type = type;
        node.info.name = name;
        (parent == 0 ? top : nodes[parent].children).push_back(id);
        return node;
    }
    PropertyInfo& property(NodeId id, const std::string& name, const Value& value, bool writable = true)
    {
        Node& node = nodes[id];
        PropertyInfo info;
        info.name = name;
        info.kind = value.kind;
        info.list = value.list;
        info.writable = writable;
        node.properties.push_back(info);
        node.values[name] = value;
        return node.properties.back();
    }
    /// By itself, as a running scene does.
    void change(NodeId id, const std::string& name, const Value& value)
    {
        nodes[id].values[name] = value;
        changes.properties.push_back({id, name});
    }

    std::string sceneGraphName() const override { return "TestScene 1.0"; }
    live::Abilities abilities() const override { return offers; }
    std::vector<live::NodeInfo> roots() override { return infosOf(top, 0, 1U << 30); }
    std::optional<live::NodeInfo> node(NodeId id) override
    {
        if (nodes.count(id) == 0)
            return std::nullopt;
        return infosOf({id}, 0, 1).front();
    }
    std::vector<live::NodeInfo> children(NodeId id, std::uint32_t first, std::uint32_t count) override
    {
        ++childQuestions;
        return nodes.count(id) == 0 ? std::vector<live::NodeInfo>()
                                    : infosOf(nodes[id].children, first, count);
    }
    std::vector<std::vector<NodeId>> pathsTo(NodeId, std::uint32_t) override { return {}; }
    std::vector<PropertyInfo> properties(NodeId id) override
    {
        return nodes.count(id) == 0 ? std::vector<PropertyInfo>() : nodes[id].properties;
    }
    std::optional<Value> value(NodeId id, const std::string& property) override
    {
        ++valueQuestions;
        if (nodes.count(id) == 0 || nodes[id].values.count(property) == 0)
            return std::nullopt;
        return nodes[id].values[property];
    }
    live::WriteResult write(NodeId id, const std::string& property, const Value& value) override
    {
        if (nodes.count(id) == 0 || nodes[id].values.count(property) == 0)
            return {false, {}, "There is no such property."};
        Value& here = nodes[id].values[property];
        if (refused.count(property) > 0 || value.kind != here.kind || value.list != here.list)
            return {false, here, refusal};
        here = clamped(id, property, value);
        ++writes;
        return {true, here, {}};
    }
    live::StructureResult remove(NodeId parent, std::uint32_t index) override
    {
        auto& children = nodes[parent].children;
        if (refused.count("children") > 0 || index >= children.size())
            return {false, 0, "It keeps its children."};
        const NodeId id = children[index];
        children.erase(children.begin() + index);
        tellOfChildren(parent);
        return {true, id, {}};
    }
    live::StructureResult insert(NodeId parent, std::uint32_t index, NodeId id) override
    {
        auto& children = nodes[parent].children;
        if (refused.count("children") + fullGroups.count(parent) > 0 || index > children.size() ||
            nodes.count(id) == 0)
            return {false, 0, "It takes no children."};
        children.insert(children.begin() + index, id);
        tellOfChildren(parent);
        return {true, id, {}};
    }
    std::vector<std::string> addableTypes(NodeId id) override
    {
        return nodes[id].info.canHaveChildren || !nodes[id].children.empty() ? addable
                                                                             : std::vector<std::string>{};
    }
    live::StructureResult add(NodeId parent, std::uint32_t index, const std::string& type) override
    {
        if (refused.count(type) > 0)
            return {false, 0, "It has enough of them."};
        const NodeId made = ++lastMade;
        const bool isGroup = type == "Group" || type == "Planet" || type == "Separator";
        nodes[made].info = {made, type, "made" + std::to_string(made), 0, 1, isGroup};
        return insert(parent, index, made);
    }
    live::StructureResult copy(NodeId parent, std::uint32_t index, NodeId id) override
    {
        if (nodes.count(id) == 0 || refused.count("copies") > 0)
            return {false, 0, "It is the only one of its kind."};
        const NodeId made = ++lastMade;
        Node copied = nodes[id];
        copied.info.id = made;
        copied.info.name += " again";
        nodes[made] = copied;
        return insert(parent, index, made);
    }
    void forget(NodeId id) override { forgotten.push_back(id); }
    live::FrameTable takeFrames() override { return std::exchange(frames, {}); }
    void watch(NodeId id, bool) override { watched.insert(id); }
    void unwatch(NodeId id) override { watched.erase(id); }
    live::AdapterChanges takeChanges() override { return std::exchange(changes, {}); }
    live::PickResult pick(double x, double) override
    {
        live::PickResult result;
        result.hit = x < 0.5 && !hit.empty();
        if (result.hit)
            result.path = hit;
        return result;
    }
    std::optional<Value> box(NodeId) override
    {
        const double corners[6] = {-1, -1, -1, 1, 1, 1};
        return live::packed(ValueKind::Box, corners);
    }
    void askPicture(std::uint32_t width, std::uint32_t) override { pictureWidth = width; }
    std::optional<live::Picture> takePicture() override
    {
        if (pictureWidth == 0)
            return std::nullopt;
        live::Picture picture;
        picture.width = 64;
        picture.height = 48;
        picture.pixels.assign(64 * 48 * 4, 200);
        return picture;
    }
    void mark(NodeId id) override { marked.push_back(id); }
    bool lookFrom(const live::Camera& camera) override
    {
        eye = camera;
        return true;
    }
    std::optional<live::Camera> camera() override { return eye; }
    std::vector<std::vector<NodeId>> find(const std::string& query, std::uint32_t) override
    {
        std::vector<std::vector<NodeId>> found;
        for (const auto& [id, node] : nodes) {
            if (node.info.name.find(query) != std::string::npos)
                found.push_back(wayTo(id));
        }
        return found;
    }
    std::vector<live::CounterInfo> counters() override { return {{1, "Cull time", "ms", ""}}; }
    std::vector<double> counterValues() override { return {2.5}; }
    std::vector<live::Notice> takeNotices() override { return std::exchange(notices, {}); }

private:
    std::vector<live::NodeInfo> infosOf(const std::vector<NodeId>& ids, std::uint32_t first,
                                        std::uint32_t count)
    {
        std::vector<live::NodeInfo> infos;
        for (std::size_t i = first; i < ids.size() && i - first < count; ++i) {
            live::NodeInfo info = nodes[ids[i]].info;
            info.childCount = static_cast<std::uint32_t>(nodes[ids[i]].children.size());
            info.canHaveChildren |= info.childCount > 0;
            info.parentCount = countParents(ids[i]);
            infos.push_back(info);
        }
        return infos;
    }
    void tellOfChildren(NodeId parent)
    {
        if (tellsOfChildren)
            changes.children.push_back(parent);
    }
    std::uint32_t countParents(NodeId id) const
    {
        const auto holds = [id](const auto& each) {
            return std::count(each.second.children.begin(), each.second.children.end(), id) > 0;
        };
        return static_cast<std::uint32_t>(std::count_if(nodes.begin(), nodes.end(), holds));
    }
    Value clamped(NodeId id, const std::string& property, const Value& value)
    {
        for (const PropertyInfo& info : nodes[id].properties) {
            if (info.name == property && info.greatest && value.kind == ValueKind::Double && !value.list)
                return number(std::min(*live::unpacked<double>(value), *info.greatest));
        }
        return value;
    }
    std::vector<NodeId> wayTo(NodeId id)
    {
        std::vector<NodeId> way{id};
        for (bool goesOn = true; goesOn;) {
            goesOn = false;
            for (const auto& [parent, node] : nodes) {
                if (std::count(node.children.begin(), node.children.end(), way.front()) > 0) {
                    way.insert(way.begin(), parent);
                    goesOn = true;
                    break;
                }
            }
        }
        return way;
    }
};

/// The scene with a server, whose frames go on while the event loop runs.
class TestProgram
{
public:
    TestProgram()
    {
        qputenv("XDG_RUNTIME_DIR", folder().path().toLocal8Bit());
        start();
        QObject::connect(&frames, &QTimer::timeout, [this] {
            if (server)
                server->betweenFrames();
        });
        frames.start(0);
    }
    QString socket() const { return QString::fromStdString(server->socketPath()); }
    void start()
    {
        server.reset();
        server = std::make_unique<live::Server>(scene, "orrery");
    }
    void kill() { server.reset(); }

    TestScene scene;
    std::unique_ptr<live::Server> server;
    QTimer frames;

private:
    static QTemporaryDir& folder()
    {
        static QTemporaryDir folder;
        return folder;
    }
};
