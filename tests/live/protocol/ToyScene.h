// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/adapter/Adapter.h>
#include <scopix/live/values/LivePacking.h>

#include <map>
#include <stdexcept>

/// A scene of one node with a number and a list, whose adapter does what a test wants it to.
class ToyScene : public scopix::live::Adapter
{
public:
    static constexpr scopix::live::NodeId Node = 1;

    std::string sceneGraphName() const override { return "Toy 1"; }
    scopix::live::Abilities abilities() const override { return {}; }
    std::vector<scopix::live::NodeInfo> roots() override
    {
        ++asked;
        if (fails)
            throw std::runtime_error("it does not want to");
        return {{Node, "Toy", "toy", 0, 0, false}};
    }
    std::optional<scopix::live::NodeInfo> node(scopix::live::NodeId) override { return std::nullopt; }
    std::vector<scopix::live::NodeInfo> children(scopix::live::NodeId, std::uint32_t, std::uint32_t) override
    {
        return {};
    }
    std::vector<std::vector<scopix::live::NodeId>> pathsTo(scopix::live::NodeId, std::uint32_t) override
    {
        return {};
    }
    std::vector<scopix::live::PropertyInfo> properties(scopix::live::NodeId) override { return {}; }
    std::optional<scopix::live::Value> value(scopix::live::NodeId, const std::string& name) override
    {
        ++read;
        const auto found = values.find(name);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    scopix::live::WriteResult write(scopix::live::NodeId, const std::string& name,
                                    const scopix::live::Value& value) override
    {
        if (fails)
            throw 42;
        values[name] = value;
        return {true, value, {}};
    }
    scopix::live::StructureResult remove(scopix::live::NodeId, std::uint32_t index) override
    {
        return {true, 100 + index, {}};
    }
    scopix::live::StructureResult copy(scopix::live::NodeId, std::uint32_t index,
                                       scopix::live::NodeId node) override
    {
        return {true, 1000 * node + index, {}};
    }
    scopix::live::FrameTable takeFrames() override
    {
        ++framesAsked;
        return frames;
    }
    void forget(scopix::live::NodeId node) override { forgotten.push_back(node); }
    void watch(scopix::live::NodeId node, bool withValues) override { watched[node] = withValues; }
    void unwatch(scopix::live::NodeId node) override { watched.erase(node); }
    scopix::live::AdapterChanges takeChanges() override { return std::exchange(changes, {}); }
    void askPicture(std::uint32_t, std::uint32_t) override { ++picturesAsked; }
    std::optional<scopix::live::Picture> takePicture() override { return picture; }
    void mark(scopix::live::NodeId node) override { marked = node; }
    std::vector<scopix::live::Notice> takeNotices() override { return std::exchange(notices, {}); }
    void attached(bool isAttached) override { attachments.push_back(isAttached); }

    int asked = 0;
    int read = 0;
    bool fails = false;
    std::map<std::string, scopix::live::Value> values;
    std::vector<scopix::live::NodeId> forgotten;
    std::map<scopix::live::NodeId, bool> watched;
    scopix::live::AdapterChanges changes;
    int picturesAsked = 0;
    std::optional<scopix::live::Picture> picture;
    scopix::live::NodeId marked = 0;
    std::vector<scopix::live::Notice> notices;
    std::vector<bool> attachments;
    int framesAsked = 0;
    scopix::live::FrameTable frames;
};
